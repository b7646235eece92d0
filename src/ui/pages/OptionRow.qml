pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// One option of a piece: swatches for what differs by its pictures, buttons for the rest.
Column {
    id: row

    property var group // name, selected, isSwatch, choices
    property string hint
    property SizeAdviceModel advice: null

    readonly property bool isSwatch: group?.isSwatch ?? false
    readonly property var choices: group?.choices ?? []
    readonly property string recommended: row.advice !== null && row.advice.option === group?.name ? row.advice.recommendedSize : ""
    // More than these are made between frames.
    readonly property int choicesAtOnce: 16

    signal chosen(string value)

    spacing: Theme.space1

    Item {
        width: parent.width
        height: name.height + Math.max(0, recommendation.height - Theme.targetMinimum)

        TextLabel {
            id: name

            anchors { left: parent.left; bottom: parent.bottom }
            text: row.group?.name ?? ""
            type: Theme.type.label
        }
        TextLabel {
            objectName: "selected"
            anchors { left: name.right; leftMargin: Theme.space1; right: recommendation.left; rightMargin: Theme.space1; top: name.top }
            // A hint that does not fit is left out.
            visible: text !== "" && (row.isSwatch || implicitWidth <= width)
            text: row.isSwatch ? row.group?.selected ?? "" : row.hint
            type: Theme.type.small
            color: Theme.muted
        }
        // Beside the name, so that nothing moves when it comes.
        Loader {
            id: recommendation

            readonly property bool wanted: row.recommended !== ""

            anchors { right: parent.right; bottom: name.bottom; bottomMargin: -3 }
            visible: wanted
            onWantedChanged: if (wanted && status === Loader.Null) setSource("SizeAdvice.qml", { advice: row.advice })
            Component.onCompleted: wantedChanged()
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
                recommended: row.recommended !== "" && value.text === row.recommended
                value: row.choices[index] ?? ({ text: "", picture: "", isSelected: false, isAvailable: true })
                onChosen: row.chosen(value.text)
            }
        }
    }
}
