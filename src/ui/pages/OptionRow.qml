pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// One option of a piece: swatches for what differs by its pictures, buttons for the rest.
Column {
    id: row

    property var group // name, selected, isSwatch, choices
    property string hint

    signal chosen(string value)

    spacing: Theme.space1

    Row {
        spacing: Theme.space1

        TextLabel {
            text: row.group.name
            type: Theme.type.label
        }
        TextLabel {
            objectName: "selected"
            visible: text !== ""
            text: row.group.isSwatch ? row.group.selected : row.hint
            type: Theme.type.small
            color: Theme.muted
        }
    }
    Flow {
        width: parent.width
        spacing: row.group.isSwatch ? Theme.space1_5 : Theme.space1

        Repeater {
            model: row.group.choices

            Item {
                id: choice

                required property var modelData

                implicitWidth: row.group.isSwatch ? swatch.implicitWidth : size.implicitWidth
                implicitHeight: row.group.isSwatch ? swatch.implicitHeight : size.implicitHeight

                Swatch {
                    id: swatch

                    objectName: "swatch." + choice.modelData.text
                    visible: row.group.isSwatch
                    label: choice.modelData.text
                    picture: choice.modelData.picture
                    selected: choice.modelData.isSelected
                    soldOut: !choice.modelData.isAvailable
                    onClicked: row.chosen(choice.modelData.text)
                }
                SizeButton {
                    id: size

                    objectName: "size." + choice.modelData.text
                    visible: !row.group.isSwatch
                    text: choice.modelData.text
                    selected: choice.modelData.isSelected
                    soldOut: !choice.modelData.isAvailable
                    onClicked: row.chosen(choice.modelData.text)
                }
            }
        }
    }
}
