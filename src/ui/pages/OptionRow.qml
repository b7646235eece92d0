pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// One option of a piece: swatches for what differs by its pictures, buttons for the rest.
Column {
    id: row

    property var group // name, selected, isSwatch, choices
    property string hint

    readonly property bool isSwatch: group?.isSwatch ?? false
    readonly property var choices: group?.choices ?? []
    // More than these are made between frames.
    readonly property int choicesAtOnce: 16

    signal chosen(string value)

    spacing: Theme.space1

    Row {
        anchors.left: parent.left
        spacing: Theme.space1

        TextLabel {
            text: row.group?.name ?? ""
            type: Theme.type.label
        }
        TextLabel {
            objectName: "selected"
            visible: text !== ""
            text: row.isSwatch ? row.group?.selected ?? "" : row.hint
            type: Theme.type.small
            color: Theme.muted
        }
    }
    Flow {
        width: parent.width
        spacing: row.isSwatch ? Theme.space1_5 : Theme.space1

        // By number: a choice keeps its button, and with it the focus, while what is chosen changes.
        Repeater {
            model: row.choices.length

            OptionChoice {
                required property int index

                asynchronous: row.choices.length > row.choicesAtOnce
                isSwatch: row.isSwatch
                value: row.choices[index] ?? ({ text: "", picture: "", isSelected: false, isAvailable: true })
                onChosen: row.chosen(value.text)
            }
        }
    }
}
