import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// What has just happened, for a moment. Its place stays.
Item {
    id: note

    property string text
    property bool good: false
    // What it fades out with.
    property string shown

    onTextChanged: if (text !== "") shown = text

    implicitHeight: Math.max(36, words.height + Theme.space1)
    opacity: text === "" ? 0 : 1

    Accessible.role: Accessible.AlertMessage
    Accessible.name: text
    Accessible.ignored: text === ""

    Behavior on opacity { NumberAnimation { duration: Theme.durationHover } }

    Icon {
        id: icon

        anchors { right: words.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
        name: note.good ? "checkmark" : "info"
        size: 16
        color: words.color
    }
    TextLabel {
        id: words

        objectName: "toast"
        anchors { horizontalCenter: parent.horizontalCenter; horizontalCenterOffset: 12; verticalCenter: parent.verticalCenter }
        width: Math.min(implicitWidth, note.width - 24)
        text: note.shown
        type: Theme.type.small
        color: note.good ? Theme.success : Theme.ink
        wrapMode: Text.Wrap
        maximumLineCount: 2
        Accessible.ignored: true
    }
}
