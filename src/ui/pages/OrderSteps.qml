pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// How far an order has come, from the first step to the last.
Item {
    id: steps

    property var texts: []
    property int current: 0

    readonly property real stepWidth: texts.length > 0 ? width / texts.length : 0

    implicitWidth: 480
    implicitHeight: 12 + Theme.space1 + row.height

    Accessible.role: Accessible.ProgressBar
    Accessible.name: qsTranslate("Loomstreet", "Step %L1 of %L2: %3").arg(current + 1).arg(texts.length).arg(texts[current] ?? "")

    Row {
        id: row

        y: 12 + Theme.space1
        width: parent.width

        Repeater {
            model: steps.texts

            Item {
                id: step

                required property int index
                required property string modelData

                readonly property bool done: index <= steps.current
                readonly property bool last: index === steps.texts.length - 1

                width: steps.stepWidth
                height: label.height

                // The way to the next one.
                Rectangle {
                    anchors { left: parent.left; leftMargin: 6 }
                    y: -Theme.space1 - 7
                    visible: !step.last
                    width: parent.width
                    height: 2
                    color: step.index < steps.current ? Theme.accent : Theme.hairline
                }
                Rectangle {
                    anchors.left: parent.left
                    y: -Theme.space1 - 12
                    width: 12
                    height: 12
                    radius: 6
                    color: step.done ? Theme.accent : Theme.paper
                    border.width: step.done ? 0 : 2
                    border.color: Theme.border
                }
                TextLabel {
                    id: label

                    anchors { left: parent.left; right: parent.right; rightMargin: Theme.space1 }
                    text: step.modelData
                    type: step.index === steps.current ? Theme.type.label : Theme.type.small
                    color: step.index === steps.current ? Theme.ink : Theme.muted
                    wrapMode: Text.Wrap
                    maximumLineCount: 2
                    Accessible.ignored: true
                }
            }
        }
    }
}
