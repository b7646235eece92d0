import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// That a call goes on elsewhere, and the way to it.
Pressable {
    id: sign

    required property MiraVoiceSession call
    property bool brief: false // there is little room

    readonly property string duration: call.durationText

    text: qsTranslate("Loomstreet", "Show the call with %1").arg(call.guideName)
    accessibleName: duration === "" ? text : text + ", " + duration
    implicitHeight: Theme.targetIcon
    implicitWidth: implicitContentWidth + 2 * Theme.space1
    onClicked: call.showInWindow()

    contentItem: Item {
        implicitWidth: dot.width + (words.visible ? Theme.space1 + words.implicitWidth : 0) + 2 * Theme.spaceHalf

        Rectangle {
            id: dot

            anchors { left: parent.left; leftMargin: Theme.space1 + Theme.spaceHalf; verticalCenter: parent.verticalCenter }
            width: 8
            height: 8
            radius: 4
            color: sign.call.isConnected ? Theme.success : "transparent"
            border { width: sign.call.isConnected ? 0 : Theme.strokeControl; color: Theme.success }
        }
        TextLabel {
            id: words

            objectName: "duration"
            anchors { left: dot.right; leftMargin: Theme.space1; verticalCenter: parent.verticalCenter }
            visible: !sign.brief && text !== ""
            text: sign.duration
            type: Theme.type.small
            figures: true
            elide: Text.ElideNone
            color: Theme.accent
            Accessible.ignored: true
        }
    }
    background: Rectangle {
        radius: height / 2
        color: sign.down ? Theme.pressed : sign.hovered ? Theme.hover : Theme.accentTint
        border { width: Theme.strokeHairline; color: Theme.accent }

        FocusRing {
            target: sign
            controlRadius: parent.radius
        }
    }
    HoverToolTip {
        control: sign
        text: sign.text
    }
}
