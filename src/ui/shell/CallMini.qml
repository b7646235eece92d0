import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Pages
import Loomstreet.Theme

// The call as a pill: what it is at, and the way to be silent or to end it. Its ground can be taken hold of; a click
// on it makes the call large.
FocusScope {
    id: form

    required property MiraVoiceSession call
    required property CallWindow window

    readonly property bool active: call.isActive
    // Where else it can be, for whoever comes near.
    readonly property bool near: hover.hovered || smaller.activeFocus || larger.activeFocus

    Accessible.role: Accessible.Pane
    Accessible.name: qsTranslate("Loomstreet", "Call with %1").arg(call.guideName)

    CallState {
        id: now

        call: form.call
    }
    HoverHandler { id: hover }
    TapHandler { onTapped: form.call.mode = MiraVoicePhases.Full }
    DragHandler {
        target: null
        onActiveChanged: if (active) form.window.startSystemMove()
    }
    CallPortrait {
        id: portrait

        anchors { left: parent.left; leftMargin: Theme.space1; verticalCenter: parent.verticalCenter }
        haloed: false
        extent: 48
        kind: now.kind
        level: now.level
    }
    CallMicrophone {
        anchors { right: portrait.right; bottom: portrait.bottom }
        call: form.call
    }
    Column {
        id: words

        anchors { left: portrait.right; leftMargin: Theme.space1; right: buttons.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }

        Item {
            width: parent.width
            height: name.height
            visible: form.active

            TextLabel {
                id: name

                anchors.left: parent.left
                width: Math.min(implicitWidth, parent.width - duration.width - duration.anchors.leftMargin)
                text: form.call.guideName
                type: Theme.type.spokenBefore
            }
            TextLabel {
                id: duration

                objectName: "duration"
                anchors { left: name.right; leftMargin: Theme.space1; baseline: name.baseline }
                text: form.call.durationText
                type: Theme.type.small
                figures: true
                color: Theme.muted
            }
        }
        CallWave {
            width: parent.width
            height: most
            visible: form.active
            most: 18
            pitch: 5
            call: form.call
            kind: now.kind
            Accessible.ignored: false
            Accessible.role: Accessible.StaticText
            Accessible.name: now.text
        }
        TextLabel {
            objectName: "failure"
            width: parent.width
            visible: !form.active
            text: form.call.failure !== "" ? form.call.failure : now.text
            type: Theme.type.caption
            wrapMode: Text.Wrap
            maximumLineCount: 4
            Accessible.role: Accessible.AlertMessage
        }
    }
    Row {
        id: buttons

        anchors { right: parent.right; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }
        spacing: Theme.spaceHalf

        // They keep their place while they are not seen, so that nothing moves below the pointer.
        IconButton {
            id: smaller

            objectName: "floatCall"
            anchors.verticalCenter: parent.verticalCenter
            visible: form.active
            opacity: form.near ? 1 : 0
            showsToolTip: false
            iconName: "person.crop.circle"
            text: qsTranslate("Loomstreet", "Only the picture")
            onClicked: form.call.mode = MiraVoicePhases.Floating
        }
        IconButton {
            id: larger

            objectName: "fullCall"
            anchors.verticalCenter: parent.verticalCenter
            visible: form.active
            opacity: form.near ? 1 : 0
            showsToolTip: false
            iconName: "expand"
            text: qsTranslate("Loomstreet", "Make it large")
            onClicked: form.call.mode = MiraVoicePhases.Full
        }
        IconButton {
            objectName: "mute"
            anchors.verticalCenter: parent.verticalCenter
            focus: true
            visible: form.active
            showsToolTip: false
            iconName: now.muteIcon
            on: form.call.isMuted
            text: now.muteText
            onClicked: form.call.toggleMute()
        }
        CallRound {
            objectName: "end"
            visible: form.active
            extent: Theme.targetIcon
            kind: "danger"
            showsToolTip: false
            iconName: "phone.down"
            text: form.call.isConnected ? qsTranslate("Loomstreet", "End the call") : qsTranslate("Loomstreet", "Cancel the call")
            onClicked: form.call.hangUp()
        }
        IconButton {
            objectName: "callAgain"
            visible: form.call.canCallAgain
            showsToolTip: false
            kind: "accent"
            radius: height / 2
            iconName: "phone"
            text: qsTranslate("Loomstreet", "Call again")
            onClicked: form.call.callAgain()
        }
        IconButton {
            objectName: "close"
            visible: !form.active
            showsToolTip: false
            iconName: "xmark"
            text: qsTranslate("Loomstreet", "Close")
            onClicked: form.call.dismiss()
        }
    }
}
