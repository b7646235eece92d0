import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The filters beside the grid they narrow.
FocusScope {
    id: side

    required property ProductListing listing
    property int padding: Theme.layoutPagePaddingRegular

    signal closeAsked()

    implicitWidth: 264 + padding

    Keys.onEscapePressed: closeAsked()

    Accessible.role: Accessible.Grouping
    Accessible.name: title.text

    TextLabel {
        id: title

        anchors { left: parent.left; leftMargin: side.padding; verticalCenter: close.verticalCenter }
        text: qsTranslate("Loomstreet", "Filters")
        type: Theme.type.panel
        Accessible.role: Accessible.Heading
    }
    IconButton {
        id: close

        objectName: "closeFilters"
        anchors { right: parent.right; rightMargin: Theme.space2; top: parent.top; topMargin: Theme.space2 }
        focus: true
        iconName: "xmark"
        text: qsTranslate("Loomstreet", "Close filters")
        shortcut: "Esc"
        onClicked: side.closeAsked()
    }
    FilterList {
        anchors { left: parent.left; right: edge.left; top: close.bottom; topMargin: Theme.space1; bottom: parent.bottom }
        startPadding: side.padding
        endPadding: Theme.space2
        filters: side.listing.filters
    }
    Rectangle {
        id: edge

        anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
        width: Theme.strokeHairline
        color: Theme.hairline
    }
}
