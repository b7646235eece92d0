import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Pages
import Loomstreet.Theme

// The upper edge of the call's window, by which it is taken hold of: how long the call lasts, whether the microphone is
// open, and the other places where it can be.
Item {
    id: head

    required property MiraVoiceSession call
    required property CallWindow window
    property string kind

    readonly property bool connected: call.isConnected

    implicitHeight: Math.max(44, microphone.implicitHeight + Theme.space1)

    MouseArea {
        anchors.fill: parent
        onPressed: head.window.startSystemMove()
    }
    Rectangle {
        id: dot

        anchors { left: parent.left; leftMargin: Theme.space2; verticalCenter: parent.verticalCenter }
        width: 8
        height: 8
        radius: 4
        color: head.connected ? Theme.success : "transparent"
        border { width: head.connected ? 0 : Theme.strokeControl; color: Theme.border }
    }
    TextLabel {
        id: duration

        objectName: "duration"
        anchors { left: dot.right; leftMargin: Theme.space1; verticalCenter: parent.verticalCenter }
        text: head.call.durationText
        type: Theme.type.small
        figures: true
        color: Theme.muted
        Accessible.name: qsTranslate("Loomstreet", "Duration of the call: %1").arg(text)
    }
    CallMicrophone {
        id: microphone

        anchors { left: duration.right; leftMargin: duration.text === "" ? 0 : Theme.space1_5; right: buttons.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
        call: head.call
        worded: true
    }
    Row {
        id: buttons

        anchors { right: parent.right; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
        spacing: Theme.space1

        IconButton {
            objectName: "dockCall"
            visible: head.call.isActive
            iconName: "sidebar"
            text: qsTranslate("Loomstreet", "Show in the chat")
            onClicked: head.call.dockIntoChat()
        }
        IconButton {
            objectName: "miniCall"
            visible: head.call.isActive
            iconName: "window.minimize"
            text: qsTranslate("Loomstreet", "Make it small")
            shortcut: "Esc"
            onClicked: head.call.mode = MiraVoicePhases.Mini
        }
        IconButton {
            objectName: "closeCall"
            iconName: "xmark"
            text: !head.call.isActive ? qsTranslate("Loomstreet", "Close")
                : head.call.closingReturnsToChat ? qsTranslate("Loomstreet", "Close, and go on in the chat")
                                                 : qsTranslate("Loomstreet", "End the call and close")
            shortcut: "Ctrl W"
            onClicked: head.window.close()
        }
    }
}
