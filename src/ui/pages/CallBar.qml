import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The call while it has no window of its own, above where one writes; when it came to nothing, why.
FocusScope {
    id: bar

    required property MiraVoiceSession call

    readonly property bool failed: !call.isActive && call.failure !== ""
    readonly property bool shown: !call.isWindowShown && (call.isActive || failed)

    visible: shown
    implicitHeight: !shown ? 0 : failed ? end.height + 2 * Theme.space1_5 : Math.max(Theme.space8, words.height + 2 * Theme.space1)

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTranslate("Loomstreet", "Call with %1").arg(call.guideName)

    CallState {
        id: now

        call: bar.call
    }
    Shortcut {
        sequence: "Ctrl+Shift+H"
        enabled: bar.shown && bar.call.isActive
        onActivated: bar.call.hangUp()
    }
    Rectangle {
        anchors.fill: parent
        radius: Theme.radiusPanel
        color: bar.failed ? Theme.surface : Theme.accentTint
        border { width: Theme.strokeHairline; color: bar.failed ? Theme.danger : Theme.accent }
    }
    CallPortrait {
        id: portrait

        anchors { left: parent.left; leftMargin: Theme.space1_5; verticalCenter: parent.verticalCenter }
        visible: !bar.failed
        haloed: false
        extent: 36
        kind: now.kind
        level: now.level
    }
    CallMicrophone {
        anchors { right: portrait.right; bottom: portrait.bottom; rightMargin: -Theme.spaceHalf; bottomMargin: -Theme.spaceHalf }
        call: bar.call
    }
    Column {
        id: words

        anchors { left: portrait.right; leftMargin: Theme.space1_5; right: buttons.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
        visible: !bar.failed

        Item {
            width: parent.width
            height: phase.height

            TextLabel {
                id: phase

                objectName: "callPhase"
                anchors.left: parent.left
                width: Math.min(implicitWidth, parent.width)
                text: now.text
                type: Theme.type.label
            }
            TextLabel {
                objectName: "callDuration"
                anchors { left: phase.right; leftMargin: Theme.space1; right: parent.right }
                text: bar.call.durationText
                type: Theme.type.small
                figures: true
                color: Theme.muted
            }
        }
        TextLabel {
            objectName: "callLine"
            width: parent.width
            visible: text !== ""
            text: now.line
            type: Theme.type.small
            color: Theme.muted
            // What is said last is what counts of a line that grows.
            elide: bar.call.toast !== "" ? Text.ElideRight : Text.ElideLeft
        }
    }
    Row {
        id: buttons

        anchors { right: parent.right; rightMargin: Theme.space1_5; verticalCenter: parent.verticalCenter }
        visible: !bar.failed
        spacing: Theme.spaceHalf

        IconButton {
            objectName: "callMute"
            anchors.verticalCenter: parent.verticalCenter
            iconName: now.muteIcon
            on: bar.call.isMuted
            text: now.muteText
            shortcut: bar.call.muteKeyText.replace(/\+/g, " ")
            onClicked: bar.call.toggleMute()
        }
        IconButton {
            objectName: "callInWindow"
            anchors.verticalCenter: parent.verticalCenter
            iconName: "expand"
            text: qsTranslate("Loomstreet", "Open in a Window")
            onClicked: bar.call.showInWindow()
        }
        CallRound {
            objectName: "callEnd"
            anchors.verticalCenter: parent.verticalCenter
            extent: Theme.targetIcon
            kind: "danger"
            iconName: "phone.down"
            text: qsTranslate("Loomstreet", "End")
            accessibleName: qsTranslate("Loomstreet", "End the call")
            shortcut: "Ctrl Shift H"
            onClicked: bar.call.hangUp()
        }
    }
    CallEnd {
        id: end

        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.space1_5 }
        visible: bar.failed
        small: true
        call: bar.call
    }
}
