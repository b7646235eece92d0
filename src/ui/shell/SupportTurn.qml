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

    readonly property var files: model.attachments ?? []

    mine: model.isMine
    text: model.text
    timeLabel: model.timeLabel
    heading: headingOf(model.dayLabel, model.timeLabel)
    speaker: mine ? qsTranslate("Loomstreet", "You") : model.agent !== "" ? model.agent : qsTranslate("Loomstreet", "Customer Service")
    sending: model.state === SupportThreadModel.Sending
    problem: model.problem
    onRetryAsked: support.retryMessage(model.key)
    onRemoveAsked: support.discardMessage(model.key)

    extrasHeight: column.visible ? column.height : 0
    extras: Column {
        id: column

        // A list asks for the height at once, before a column lays itself out.
        function layOut(): void { forceLayout() }

        width: turn.width
        visible: !turn.mine || turn.files.length > 0
        spacing: turn.gap
        Component.onCompleted: layOut()

        Repeater {
            model: turn.files
            onModelChanged: column.layOut()

            SupportAttached {
                required property var modelData
                required property int index

                objectName: "attachment." + index
                x: turn.atLeft ? 0 : turn.width - width
                room: Math.min(turn.width, 280)
                attachment: modelData
                sending: turn.sending
                onClicked: turn.support.openAttachment(turn.model.key, index)
            }
        }
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
    }
}
