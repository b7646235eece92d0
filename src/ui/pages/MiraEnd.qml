import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Below the latest message: what one could say next, and while she replies, that she does. It is as tall either way,
// so that what is read stays where it is.
Item {
    id: end

    property MiraChatModel mira
    property bool brief: false // there is little room

    readonly property var first: mira.prompts
    readonly property var second: mira.morePrompts

    signal chosen(string text)

    implicitHeight: Math.max(prompts.height, Theme.targetMinimum) + Theme.space2 + Theme.space1_5

    Row {
        objectName: "replying"
        y: Theme.space2
        anchors.left: parent.left
        height: Theme.targetMinimum
        visible: end.mira.isReplying
        spacing: Theme.space1

        Spinner {
            anchors.verticalCenter: parent.verticalCenter
            running: end.mira.isReplying
            color: Theme.accent
        }
        TextLabel {
            anchors.verticalCenter: parent.verticalCenter
            text: end.mira.replyingNote
            type: Theme.type.small
            color: Theme.muted
        }
    }
    MiraPrompts {
        id: prompts

        y: Theme.space2
        anchors.left: parent.left
        width: parent.width
        opacity: end.mira.isReplying ? 0 : 1
        enabled: !end.mira.isReplying
        texts: end.brief ? end.first : [...end.first, ...end.second]
        onChosen: text => end.chosen(text)

        Behavior on opacity { NumberAnimation { duration: Theme.durationHover } }
    }
}
