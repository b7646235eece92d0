pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Which of the pieces in the bag and on the wishlist the stylist is to style with.
Sheet {
    id: sheet

    required property MiraChatModel mira

    readonly property var wardrobe: mira.wardrobe
    readonly property bool empty: wardrobe.count === 0

    signal newPiecesAsked()

    objectName: "miraWardrobe"
    name: title.text
    extent: Qt.size(560, 640)
    onOpenChanged: if (open) wardrobe.show()
    Component.onCompleted: wardrobe.show()

    TextLabel {
        id: title

        objectName: "title"
        anchors { left: parent.left; right: parent.right; top: parent.top; leftMargin: Theme.space4; rightMargin: Theme.space8; topMargin: Theme.space3 }
        text: qsTranslate("Loomstreet", "Style with my pieces")
        type: Theme.type.section
        wrapMode: Text.Wrap
        Accessible.role: Accessible.Heading
    }
    TextLabel {
        id: sentence

        anchors { left: title.left; right: parent.right; rightMargin: Theme.space4; top: title.bottom; topMargin: Theme.spaceHalf }
        visible: !sheet.empty
        text: qsTranslate("Loomstreet", "%1 uses these first, and adds something new only where it is missing.").arg(sheet.mira.guideName)
        type: Theme.type.small
        color: Theme.muted
        wrapMode: Text.Wrap
    }
    ListView {
        id: list

        objectName: "wardrobe"
        anchors { left: parent.left; right: parent.right; top: sentence.bottom; topMargin: Theme.space2; bottom: foot.top; leftMargin: Theme.space3; rightMargin: Theme.space3 }
        visible: !sheet.empty
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: true
        reuseItems: true
        clip: true
        model: sheet.wardrobe
        ScrollBar.vertical: ScrollBar {}

        Accessible.role: Accessible.List
        Accessible.name: title.text

        FocusFollower { flickable: list }

        delegate: MiraWardrobeRow {
            width: list.width
            enabled: isPicked || sheet.wardrobe.pickedCount < sheet.wardrobe.maximum
            onClicked: sheet.wardrobe.toggle(handle)
        }
    }
    EmptyState {
        anchors { left: parent.left; right: parent.right; top: title.bottom; bottom: parent.bottom }
        visible: sheet.empty
        iconName: "hanger"
        backdrop: Theme.surface
        title: qsTranslate("Loomstreet", "Nothing to style with yet")
        sentence: qsTranslate("Loomstreet", "Pieces in your bag and on your wishlist show here.")

        PushButton {
            text: qsTranslate("Loomstreet", "New In")
            onClicked: {
                sheet.closeAsked()
                sheet.newPiecesAsked()
            }
        }
    }
    Item {
        id: foot

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: Theme.space4; rightMargin: Theme.space4 }
        height: Theme.targetControl + 2 * Theme.space2
        visible: !sheet.empty

        Hairline {
            anchors { left: parent.left; right: parent.right; top: parent.top; leftMargin: -Theme.space4; rightMargin: -Theme.space4 }
        }
        TextLabel {
            objectName: "pickedCount"
            anchors { left: parent.left; right: buttons.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
            text: sheet.wardrobe.pickedCount < sheet.wardrobe.maximum
                  ? qsTranslate("Loomstreet", "%Ln chosen", "", sheet.wardrobe.pickedCount)
                  : qsTranslate("Loomstreet", "%Ln chosen, the most there can be", "", sheet.wardrobe.pickedCount)
            type: Theme.type.small
            figures: true
            color: Theme.muted
            wrapMode: Text.Wrap
        }
        Row {
            id: buttons

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            spacing: Theme.space1

            PushButton {
                objectName: "clearWardrobe"
                kind: "quiet"
                visible: sheet.wardrobe.pickedCount > 0
                text: qsTranslate("Loomstreet", "Clear")
                onClicked: sheet.wardrobe.clearPicks()
            }
            PushButton {
                objectName: "doneWardrobe"
                kind: "primary"
                text: qsTranslate("Loomstreet", "Done")
                onClicked: sheet.closeAsked()
            }
        }
    }
}
