pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// What one could say to the stylist, ready to be sent.
Flow {
    id: prompts

    property var texts: []

    signal chosen(string text)

    spacing: Theme.space1

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTranslate("Loomstreet", "Suggestions")

    Repeater {
        model: prompts.texts

        Chip {
            required property string modelData
            required property int index

            objectName: "prompt." + index
            width: Math.min(implicitWidth, prompts.width)
            text: modelData
            onClicked: prompts.chosen(modelData)
        }
    }
}
