pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// A message of the conversation with customer service and the files that came with it.
ChatBubble {
    id: turn

    // Of the thread; a role of it is called as a property of every item is.
    required property var model
    property SupportChatModel support

    mine: model.isMine
    text: model.text
    timeLabel: model.timeLabel
    heading: model.dayLabel === "" ? "" : model.timeLabel === "" ? model.dayLabel : model.dayLabel + ", " + Bidi.isolate(model.timeLabel)
    speaker: mine ? qsTranslate("Loomstreet", "You") : model.agent !== "" ? model.agent : qsTranslate("Loomstreet", "Customer Service")
    sending: model.state === SupportThreadModel.Sending
    problem: model.problem
    onRetryAsked: support.retryMessage(model.key)
    onRemoveAsked: support.discardMessage(model.key)

    extras: [
        Repeater {
            model: turn.model.attachments

            SupportAttached {
                required property var modelData
                required property int index

                objectName: "attachment." + index
                anchors.left: turn.mine ? undefined : parent?.left
                anchors.right: turn.mine ? parent?.right : undefined
                room: Math.min(turn.width, 280)
                attachment: modelData
                sending: turn.sending
                onClicked: turn.support.openAttachment(turn.model.key, index)
            }
        },
        TextLabel {
            objectName: "agent"
            anchors.left: parent?.left
            width: Math.min(implicitWidth, turn.width)
            visible: !turn.mine
            text: turn.timeLabel === "" ? turn.speaker : turn.speaker + " · " + Bidi.isolate(turn.timeLabel)
            type: Theme.type.caption
            figures: true
            color: Theme.muted
            Accessible.ignored: true
        }
    ]
}
