pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Before anything has been said: who she is, and ways to begin.
Flickable {
    id: welcome

    property MiraChatModel mira

    readonly property var first: mira.prompts
    readonly property var second: mira.morePrompts

    signal chosen(string text)

    contentHeight: column.height + 2 * Theme.space3
    boundsBehavior: Flickable.StopAtBounds
    interactive: contentHeight > height
    clip: true
    ScrollBar.vertical: ScrollBar {}

    FocusFollower { flickable: welcome }

    Column {
        id: column

        readonly property int room: Math.min(welcome.width - 2 * Theme.space3, 480)

        x: Math.round((welcome.width - width) / 2)
        y: Math.max(Theme.space3, Math.round((welcome.height - height) / 2))
        width: room
        spacing: Theme.space1

        IconDisc {
            anchors.horizontalCenter: parent.horizontalCenter
            implicitWidth: 56
            iconName: "sparkles"
            iconSize: 24
            tone: "accent"
        }
        TextLabel {
            objectName: "welcome"
            width: parent.width
            topPadding: Theme.space1 + evenPadding - type.leading
            text: qsTranslate("Loomstreet", "What are you dressing for?")
            type: Theme.type.section
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.Heading
        }
        TextLabel {
            width: parent.width
            text: qsTranslate("Loomstreet", "Tell %1 the occasion, a piece you love or a budget, and she puts it together.").arg(welcome.mira.guideName)
            color: Theme.muted
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }
        Item { width: 1; height: Theme.space1 }
        Column {
            width: parent.width
            spacing: Theme.space1

            Repeater {
                model: [...welcome.first, ...welcome.second]

                Chip {
                    required property string modelData
                    required property int index

                    objectName: "prompt." + index
                    anchors.horizontalCenter: parent?.horizontalCenter
                    width: Math.min(implicitWidth, column.room)
                    text: modelData
                    onClicked: welcome.chosen(modelData)
                }
            }
        }
    }
}
