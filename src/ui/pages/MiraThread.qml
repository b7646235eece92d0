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

    // What is not looked at first comes in turns of its own, and what may never be seen when it is to be.
    Timer {
        id: next

        property int step: 0

        interval: 0
        running: true
        onTriggered: if (++step < 2) start()
    }
    // The latest are laid out first, those above them a turn later.
    Timer {
        id: rest

        property int step: 0

        interval: 0
        onTriggered: if (++step < 2) start()
    }
    Loader {
        id: strip

        width: parent.width
        active: !thread.empty && thread.mira.failure !== ""
        visible: active
        sourceComponent: OfflineStrip {
            // qmllint disable unqualified
            objectName: "strip"
            offline: thread.app.session.isOffline
            canRetry: true
            text: thread.mira.failure
            onRetry: thread.mira.retry()
            // qmllint enable unqualified
        }
    }
    ChatList {
        id: list

        objectName: "thread"
        anchors { left: parent.left; right: parent.right; top: strip.visible ? strip.bottom : parent.top; topMargin: rest.step < 2 ? Math.floor(thread.height / 2) : 0; bottom: parent.bottom }
        visible: count > 0
        onVisibleChanged: if (visible && rest.step < 2) rest.start()
        focus: true
        model: thread.mira.thread
        name: qsTranslate("Loomstreet", "Conversation with %1").arg(thread.mira.guideName)
        topMargin: Theme.space2
        spacing: Theme.space2
        end: bottom

        delegate: MiraTurn {
            // qmllint disable unqualified
            x: thread.padding
            width: list.width - 2 * thread.padding
            mira: thread.mira
            wishlist: thread.app.wishlist
            onPieceOpened: (card, mode) => thread.pieceOpened(card, mode)
            onLookAsked: handles => thread.lookAsked(handles)
            onAnchorAsked: card => thread.mira.anchorLook(card.handle, card.title)
            onMeasurementsAsked: thread.measurementsAsked()
            onOrderOpened: id => thread.orderOpened(id)
            // qmllint enable unqualified
        }
    }
    Loader {
        id: bottom

        x: thread.padding
        width: list.width - 2 * thread.padding
        visible: list.visible
        active: next.step > 0
        sourceComponent: MiraEnd {
            // qmllint disable unqualified
            mira: thread.mira
            brief: thread.height < 440
            onChosen: text => thread.promptChosen(text)
            // qmllint enable unqualified
        }
    }
    Loader {
        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: Theme.space1 }
        active: list.visible && !list.follows
        sourceComponent: JumpButton {
            count: list.unseen // qmllint disable unqualified
            onClicked: list.toLatest() // qmllint disable unqualified
        }
    }
    Loader {
        anchors.fill: parent
        active: thread.welcomes && next.step > 1
        sourceComponent: MiraWelcome {
            // qmllint disable unqualified
            objectName: "welcome"
            mira: thread.mira
            onChosen: text => thread.promptChosen(text)
            // qmllint enable unqualified
        }
    }
    Loader {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: thread.padding }
        active: thread.loading && next.step > 0
        sourceComponent: MiraSkeleton {
            wanted: true
        }
    }
    Loader {
        anchors.centerIn: parent
        width: Math.min(parent.width, 480)
        active: thread.failed
        sourceComponent: ErrorState {
            // qmllint disable unqualified
            objectName: "error"
            takesFocus: false // the shopper may be writing
            sentence: thread.mira.failure
            onRetry: thread.mira.retry()
            // qmllint enable unqualified
        }
    }
    // Above what is read, for a moment.
    FloatingSurface {
        anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; topMargin: (strip.visible ? strip.height : 0) + Theme.space1 }
        width: Math.min(parent.width - 2 * thread.padding, notice.implicitWidth + 2 * Theme.space2)
        height: notice.implicitHeight + 2 * Theme.space1
        radius: Math.min(height, Theme.targetMinimum) / 2
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
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
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
