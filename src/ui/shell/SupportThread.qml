pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The conversation with customer service as it is read, with everything that can stand in its place.
FocusScope {
    id: thread

    property AppModel app
    property SupportChatModel support
    property bool shown: true

    readonly property int padding: Theme.space2 + 4
    readonly property bool empty: list.count === 0
    readonly property bool failed: empty && support.failure !== ""
    readonly property bool loading: empty && support.isLoading && !failed

    signal questionChosen(string text)

    function toLatest(): void { list.toLatest() }

    OfflineStrip {
        id: strip

        objectName: "strip"
        width: parent.width
        visible: !thread.empty && thread.support.failure !== ""
        offline: thread.app.session.isOffline
        canRetry: true
        text: thread.support.failure
        onRetry: thread.support.retry()
    }
    ChatList {
        id: list

        objectName: "thread"
        anchors { left: parent.left; right: parent.right; top: strip.visible ? strip.bottom : parent.top; bottom: parent.bottom }
        visible: count > 0
        focus: true
        model: thread.support.thread
        name: qsTranslate("Loomstreet", "Conversation with Customer Service")
        topMargin: Theme.space2
        spacing: Theme.space2
        end: gap

        delegate: SupportTurn {
            x: thread.padding
            width: list.width - 2 * thread.padding
            support: thread.support
        }
    }
    Item {
        id: gap

        height: Theme.space2
    }
    JumpButton {
        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: Theme.space1 }
        visible: list.visible && !list.follows
        count: list.unseen
        onClicked: list.toLatest()
    }
    Flickable {
        objectName: "welcome"
        anchors.fill: parent
        visible: thread.empty && !thread.failed && !thread.loading
        contentHeight: Math.max(height, welcome.implicitHeight)
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        EmptyState {
            id: welcome

            width: parent.width
            height: parent.height
            backdrop: Theme.surface
            iconName: "headphones"
            title: qsTranslate("Loomstreet", "How can we help?")
            sentence: qsTranslate("Loomstreet", "Ask about an order, a return or your size. Pictures help, too.")

            Repeater {
                model: [qsTranslate("Loomstreet", "Where is my order?"), qsTranslate("Loomstreet", "I would like to return something"),
                        qsTranslate("Loomstreet", "Which size should I take?")]

                Chip {
                    required property string modelData
                    required property int index

                    objectName: "question." + index
                    text: modelData
                    onClicked: thread.questionChosen(modelData)
                }
            }
        }
    }
    // What comes at once needs no stand-in.
    Timer {
        id: late

        property bool elapsed: false

        interval: 150
        running: thread.loading && !elapsed
        onTriggered: elapsed = true
    }
    onLoadingChanged: if (!loading) late.elapsed = false
    Column {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: thread.padding }
        visible: thread.loading && late.elapsed
        spacing: Theme.space2

        Accessible.ignored: true

        Repeater {
            model: [{ share: 0.56, mine: true }, { share: 0.92, mine: false }, { share: 0.7, mine: false }, { share: 0.4, mine: true }]

            Skeleton {
                required property var modelData

                anchors.left: modelData.mine ? undefined : parent?.left
                anchors.right: modelData.mine ? parent?.right : undefined
                width: Math.round((thread.width - 2 * thread.padding) * modelData.share)
                height: modelData.mine ? 38 : Theme.type.body.size
                radius: modelData.mine ? Theme.radiusPanel : Theme.radiusSmall
            }
        }
    }
    ErrorState {
        objectName: "error"
        anchors.centerIn: parent
        width: Math.min(parent.width, 480)
        visible: thread.failed
        takesFocus: false // the shopper may be writing
        busy: thread.support.isLoading
        sentence: thread.support.failure
        onRetry: thread.support.retry()
    }
    Announcer {
        id: announcer
    }
    Connections {
        target: thread.support
        // Of several windows that show it, the one that is looked at says it.
        enabled: thread.shown && thread.Window.active
        function onReplyArrived(text: string): void { announcer.say([text]) }
    }
}
