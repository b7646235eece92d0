pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Theme

// What can be picked of a calendar's page. One stop for the Tab key; the arrows move within.
FocusScope {
    id: grid

    property var cells: [] // value, text, name, open, chosen; no text leaves a place free
    property int columns: 7

    readonly property real rowHeight: columns === 7 ? Theme.targetMinimum : height / Math.ceil(cells.length / columns)
    readonly property int chosenIndex: cells.findIndex(cell => cell.chosen)
    // Where the Tab key leads to.
    readonly property int entry: chosenIndex >= 0 ? chosenIndex : cells.findIndex(cell => cell.open)

    signal chosen(int value)

    function takeFocus(): void { repeater.itemAt(entry)?.forceActiveFocus(Qt.TabFocusReason) }
    // To the next that is open in that direction.
    function move(from: int, by: int): void {
        for (let index = from + by; index >= 0 && index < cells.length; index += by) {
            if (cells[index].open) {
                repeater.itemAt(index).forceActiveFocus(Qt.TabFocusReason)
                return
            }
        }
    }

    Grid {
        width: parent.width
        columns: grid.columns

        Repeater {
            id: repeater

            model: grid.cells.length

            Choice {
                id: cell

                required property int index
                readonly property var facts: grid.cells[index] ?? ({ value: 0, text: "", name: "", open: false, chosen: false })

                width: grid.width / grid.columns
                height: grid.rowHeight
                enabled: facts.open
                opacity: facts.text === "" ? 0 : enabled ? 1 : Theme.alphaDisabled
                selected: facts.chosen
                text: facts.text
                accessibleName: facts.name
                z: activeFocus ? 1 : 0 // its ring lies over its neighbours
                activeFocusOnTab: index === grid.entry
                onClicked: grid.chosen(facts.value)

                Keys.onLeftPressed: grid.move(index, cell.mirrored ? 1 : -1)
                Keys.onRightPressed: grid.move(index, cell.mirrored ? -1 : 1)
                Keys.onUpPressed: grid.move(index, -grid.columns)
                Keys.onDownPressed: grid.move(index, grid.columns)

                contentItem: TextLabel {
                    text: cell.text
                    type: Theme.type.label
                    figures: true
                    color: cell.selected ? Theme.accent : Theme.ink
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    Accessible.ignored: true
                }
                background: Rectangle {
                    radius: Theme.radiusControl
                    color: cell.selected ? Theme.accentTint : cell.down ? Theme.pressed : cell.hovered ? Theme.hover : "transparent"

                    FocusRing { target: cell }
                }

                Accessible.ignored: facts.text === ""
            }
        }
    }
}
