pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What the shopper wants to say once she has replied.
Column {
    id: queue

    property MiraChatModel mira

    visible: mira.queued.length > 0
    spacing: Theme.spaceHalf

    TextLabel {
        objectName: "queuedNote"
        width: parent.width
        visible: queue.mira.isReplying
        text: queue.mira.queuedNote
        type: Theme.type.caption
        color: Theme.muted
        wrapMode: Text.Wrap
    }
    Repeater {
        model: queue.mira.queued

        Item {
            id: queued

            required property string modelData
            required property int index

            width: queue.width
            height: Theme.targetMinimum

            Chip {
                objectName: "queued." + queued.index
                anchors.left: parent.left
                width: Math.min(implicitWidth, parent.width - remove.width - Theme.spaceHalf)
                enabled: !queue.mira.isReplying
                iconName: "arrow.up"
                text: queued.modelData.replace(/\s+/g, " ")
                accessibleName: qsTranslate("Loomstreet", "Send: %1").arg(text)
                onClicked: queue.mira.sendQueued(queued.index)
            }
            IconButton {
                id: remove

                objectName: "removeQueued." + queued.index
                anchors.right: parent.right
                iconName: "xmark"
                iconSize: 16
                text: qsTranslate("Loomstreet", "Remove")
                accessibleName: qsTranslate("Loomstreet", "Remove %1").arg(queued.modelData)
                onClicked: queue.mira.removeQueued(queued.index)
            }
        }
    }
}
