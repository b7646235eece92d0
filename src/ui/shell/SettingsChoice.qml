pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// One of several, under a heading.
Column {
    id: choice

    property string title
    property string value
    property var choices: [] // {value, title, note}

    signal chosen(string value)

    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Overline {
        width: parent.width
        height: Theme.layoutSidebarHeading
        verticalAlignment: Text.AlignVCenter
        words: choice.title
        color: Theme.muted
        Accessible.role: Accessible.Heading
    }
    Repeater {
        model: choice.choices

        RadioRow {
            required property var modelData

            objectName: "choice." + modelData.value
            width: choice.width
            text: modelData.title
            note: modelData.note
            divided: true
            checked: choice.value === modelData.value
            onClicked: choice.chosen(modelData.value)
        }
    }
}
