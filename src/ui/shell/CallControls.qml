import QtQuick
import Loomstreet.Model
import Loomstreet.Pages
import Loomstreet.Theme

// What one can do during a call.
FocusScope {
    id: controls

    required property MiraVoiceSession call

    readonly property bool connecting: !call.isConnected

    implicitHeight: row.height

    CallState {
        id: now

        call: controls.call
    }
    Row {
        id: row

        anchors.horizontalCenter: parent.horizontalCenter
        spacing: Math.max(Theme.space1, Math.min(52, (controls.width - mute.width - end.width - chat.width - 2 * Theme.space2) / 2))

        CallRound {
            id: mute

            objectName: "mute"
            focus: true
            worded: true
            iconName: now.muteIcon
            on: controls.call.isMuted
            checkable: false
            text: now.muteText
            shortcut: controls.call.muteKeyText === "" ? "M" : "M, " + controls.call.muteKeyText.replace(/\+/g, " ")
            onClicked: controls.call.toggleMute()
        }
        CallRound {
            id: end

            objectName: "end"
            worded: true
            kind: "danger"
            iconName: "phone.down"
            text: controls.connecting ? qsTranslate("Loomstreet", "Cancel") : qsTranslate("Loomstreet", "End")
            accessibleName: controls.connecting ? qsTranslate("Loomstreet", "Cancel the call") : qsTranslate("Loomstreet", "End the call")
            shortcut: "Ctrl Shift H"
            onClicked: controls.call.hangUp()
        }
        CallRound {
            id: chat

            objectName: "chat"
            worded: true
            iconName: "bubble"
            text: qsTranslate("Loomstreet", "Chat")
            accessibleName: qsTranslate("Loomstreet", "Go on in the chat, to write as well")
            onClicked: controls.call.dockIntoChat()
        }
    }
}
