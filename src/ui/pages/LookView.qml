pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The pieces of a look side by side, each with its sizes, and what they come to.
Sheet {
    id: sheet

    required property AppModel app
    required property WindowSession session
    required property MiraLookModel look

    readonly property bool stacked: width < 760
    readonly property int padding: stacked ? Theme.space3 : Theme.space4
    readonly property int cellWidth: 256 // five sizes stand beside each other
    readonly property int shownColumns: Math.max(2, Math.min(4, look.count))

    objectName: "lookSheet"
    name: heading.text
    extent: Qt.size(shownColumns * cellWidth + (shownColumns - 1) * Theme.space3 + 2 * padding,
                    flick.y + flick.contentHeight + sum.height)

    Connections {
        target: sheet.look
        function onCheckoutShown(): void { sheet.closeAsked() }
    }
    Column {
        id: head

        anchors { left: parent.left; right: parent.right; top: parent.top }
        anchors { leftMargin: sheet.padding; rightMargin: sheet.padding + Theme.space5; topMargin: Theme.space3 }

        TextLabel {
            id: heading

            width: parent.width
            text: qsTranslate("Loomstreet", "Your look")
            type: Theme.type.heading
            Accessible.role: Accessible.Heading
        }
        TextLabel {
            width: parent.width
            text: qsTranslate("Loomstreet", "Choose the sizes, swap what you like less, leave out what you have.")
            type: Theme.type.small
            color: Theme.muted
            wrapMode: Text.Wrap
        }
    }
    Flickable {
        id: flick

        objectName: "pieces"
        anchors { left: parent.left; right: parent.right; top: head.bottom; topMargin: Theme.space2; bottom: sum.top }
        contentHeight: grid.height + Theme.space3
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        ScrollBar.vertical: ScrollBar {}

        FocusFollower { flickable: flick }

        Grid {
            id: grid

            readonly property int room: flick.width - 2 * sheet.padding

            anchors { left: parent.left; right: parent.right; leftMargin: sheet.padding; rightMargin: sheet.padding }
            columns: sheet.stacked ? 1 : Math.max(1, Math.min(4, Math.floor((room + columnSpacing) / (200 + columnSpacing)), sheet.look.count))
            columnSpacing: Theme.space3
            rowSpacing: sheet.stacked ? Theme.space2 : Theme.space4

            Repeater {
                model: sheet.look

                LookCell {
                    width: sheet.stacked ? grid.room : Math.min(sheet.cellWidth, Math.floor((grid.room - (grid.columns - 1) * grid.columnSpacing) / grid.columns))
                    stacked: sheet.stacked
                    look: sheet.look
                    onOpened: (handle, item) => {
                        sheet.closeAsked()
                        sheet.session.selected.openPiece(handle, item, OpenModes.NewTab)
                    }
                }
            }
        }
    }
    LookSum {
        id: sum

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        padding: sheet.padding
        stacked: width < 600
        look: sheet.look
        onShoppingContinued: sheet.closeAsked()
    }
}
