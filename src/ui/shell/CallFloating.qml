import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Pages
import Loomstreet.Theme

// The call as no more than her picture. Its ground can be taken hold of, a click makes the call large, and whoever
// comes near can be silent or end it.
FocusScope {
    id: form

    required property MiraVoiceSession call
    required property CallWindow window

    readonly property bool near: hover.hovered || mute.activeFocus || end.activeFocus

    CallState {
        id: now

        call: form.call
    }
    HoverHandler { id: hover }
    DragHandler {
        target: null
        onActiveChanged: if (active) form.window.startSystemMove()
    }
    Pressable {
        id: picture

        objectName: "floatingPicture"
        anchors.fill: parent
        focus: true
        text: qsTranslate("Loomstreet", "Call with %1, %2").arg(form.call.guideName).arg(now.text)
        onClicked: form.call.mode = MiraVoicePhases.Full

        background: Item {
            CallPortrait {
                anchors.centerIn: parent
                haloed: false
                extent: 56
                kind: now.kind
                level: now.level
            }
            // Whose turn it is, where the picture leaves no room for more.
            Rectangle {
                anchors { fill: parent; margins: 1 }
                radius: width / 2
                color: "transparent"
                border { width: Theme.strokeSelected; color: now.kind === "listening" || now.kind === "speaking" ? Theme.accent : Theme.border }
                opacity: now.kind === "listening" ? 0.3 + 0.7 * now.level : 1
                visible: now.kind !== "connecting" && now.kind !== "thinking"
            }
            Rectangle {
                anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: 3 }
                visible: now.kind === "thinking"
                width: 30
                height: 12
                radius: 6
                color: Theme.surface

                CallWave {
                    anchors.fill: parent
                    most: height
                    call: form.call
                    kind: now.kind
                }
            }
            Rectangle {
                anchors { fill: parent; margins: Theme.strokeHairline }
                visible: InputMode.keyboard && picture.activeFocus
                radius: width / 2
                color: "transparent"
                border { width: Theme.strokeFocus + 1; color: Theme.focus }
            }
        }
    }
    Rectangle {
        anchors { fill: parent; margins: Theme.strokeHairline }
        visible: form.near
        enabled: false
        radius: width / 2
        color: Theme.surface
        opacity: 0.8
    }
    CallMicrophone {
        x: 51
        y: 51
        extent: 18
        call: form.call
    }
    Row {
        anchors.centerIn: parent
        opacity: form.near ? 1 : 0
        spacing: Theme.spaceHalf - 1

        CallRound {
            id: mute

            objectName: "mute"
            extent: Theme.targetIcon
            showsToolTip: false
            iconName: now.muteIcon
            on: form.call.isMuted
            text: now.muteText
            onClicked: form.call.toggleMute()
        }
        CallRound {
            id: end

            objectName: "end"
            extent: Theme.targetIcon
            kind: "danger"
            showsToolTip: false
            iconName: "phone.down"
            text: qsTranslate("Loomstreet", "End the call")
            onClicked: form.call.hangUp()
        }
    }
}
