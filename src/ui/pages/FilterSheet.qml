import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The filters over the grid, where there is no room beside it.
Panel {
    id: sheet

    required property ProductListing listing

    title: qsTranslate("Loomstreet", "Filters")

    FilterList {
        anchors.fill: parent
        filters: sheet.listing.filters
        lined: true
    }

    footer: Item {
        width: sheet.panelWidth
        height: actions.height + 2 * Theme.space2

        Grid {
            id: actions

            readonly property real natural: clear.implicitWidth + show.implicitWidth + spacing
            // Below each other, and then they stay so: the number of pieces comes and goes.
            property bool stacked: false

            onNaturalChanged: if (width > 0 && natural > width) stacked = true
            onWidthChanged: stacked = natural > width
            columns: stacked ? 1 : 2
            anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
            anchors { leftMargin: Theme.space3; rightMargin: Theme.space3 }
            spacing: Theme.space1_5

            PushButton {
                id: clear

                objectName: "clearInPanel"
                width: actions.stacked ? actions.width : implicitWidth
                enabled: sheet.listing.filters.selectedCount > 0
                size: "primary"
                text: qsTranslate("Loomstreet", "Clear All Filters")
                onClicked: sheet.listing.filters.clear()
            }
            PushButton {
                id: show

                objectName: "showPieces"
                width: actions.stacked ? actions.width : actions.width - clear.width - actions.spacing
                kind: "primary"
                size: "primary"
                busy: sheet.listing.isLoading
                text: {
                    const count = sheet.listing.totalCount
                    return count < 0 ? qsTranslate("Loomstreet", "Show pieces")
                                     : qsTranslate("Loomstreet", "Show %Ln pieces", "", count)
                }
                onClicked: sheet.closeAsked()
            }
        }
    }
}
