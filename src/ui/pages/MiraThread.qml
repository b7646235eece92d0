pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The conversation with the stylist as it is read, with everything that can stand in its place.
FocusScope {
    id: thread

    property AppModel app
    property MiraChatModel mira
    property int padding: Theme.space2 + 4
    property bool shown: true

    readonly property bool empty: list.count === 0
    readonly property bool failed: empty && mira.failure !== "" && !mira.isLoading
    readonly property bool loading: empty && mira.isLoading
    readonly property bool welcomes: empty && !failed && !loading

    signal pieceOpened(var card, int mode)
    signal lookAsked(var handles)
    signal measurementsAsked()
    signal orderOpened(string id)
    signal promptChosen(string text)

    function toLatest(): void { list.toLatest() }

    OfflineStrip {
        id: strip

        objectName: "strip"
        width: parent.width
        visible: !thread.empty && thread.mira.failure !== ""
        offline: thread.app.session.isOffline
        canRetry: true
        text: thread.mira.failure
        onRetry: thread.mira.retry()
    }
    ChatList {
        id: list

        objectName: "thread"
        anchors { left: parent.left; right: parent.right; top: strip.visible ? strip.bottom : parent.top; bottom: parent.bottom }
        visible: count > 0
        focus: true
        model: thread.mira.thread
        name: qsTranslate("Loomstreet", "Conversation with %1").arg(thread.mira.guideName)
        topMargin: Theme.space2
        spacing: Theme.space2
        end: bottom

        delegate: MiraTurn {
            x: thread.padding
            width: list.width - 2 * thread.padding
            mira: thread.mira
            wishlist: thread.app.wishlist
            onPieceOpened: (card, mode) => thread.pieceOpened(card, mode)
            onLookAsked: handles => thread.lookAsked(handles)
            onAnchorAsked: card => thread.mira.anchorLook(card.handle, card.title)
            onMeasurementsAsked: thread.measurementsAsked()
            onOrderOpened: id => thread.orderOpened(id)
        }
    }
    MiraEnd {
        id: bottom

        x: thread.padding
        width: list.width - 2 * thread.padding
        visible: list.visible
        mira: thread.mira
        brief: thread.height < 440
        onChosen: text => thread.promptChosen(text)
    }
    JumpButton {
        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: Theme.space1 }
        visible: list.visible && !list.follows
        count: list.unseen
        onClicked: list.toLatest()
    }
    MiraWelcome {
        objectName: "welcome"
        anchors.fill: parent
        visible: thread.welcomes
        mira: thread.mira
        onChosen: text => thread.promptChosen(text)
    }
    MiraSkeleton {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: thread.padding }
        wanted: thread.loading
    }
    ErrorState {
        objectName: "error"
        anchors.centerIn: parent
        width: Math.min(parent.width, 480)
        visible: thread.failed
        takesFocus: false // the shopper may be writing
        sentence: thread.mira.failure
        onRetry: thread.mira.retry()
    }
    // Above what is read, for a moment.
    FloatingSurface {
        anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; topMargin: (strip.visible ? strip.height : 0) + Theme.space1 }
        width: Math.min(parent.width - 2 * thread.padding, notice.implicitWidth + 2 * Theme.space2)
        height: notice.implicitHeight + 2 * Theme.space1
        radius: height / 2
        opacity: thread.mira.notice !== "" ? 1 : 0
        visible: opacity > 0

        Behavior on opacity { NumberAnimation { duration: Theme.durationHover } }

        TextLabel {
            id: notice

            objectName: "notice"
            anchors.centerIn: parent
            width: Math.min(implicitWidth, parent.width - 2 * Theme.space2)
            text: thread.mira.notice
            type: Theme.type.small
            Accessible.role: Accessible.AlertMessage
        }
    }
    Announcer {
        id: announcer
    }
    Connections {
        target: thread.app.auth
        function onSessionChanged(): void { announcer.stop() }
    }
    Connections {
        target: thread.mira
        // Of several places that show her, the one that is looked at says it.
        enabled: thread.shown && thread.Window.active
        function onReplyArrived(sentences: var): void { announcer.say(sentences) }
    }
}
