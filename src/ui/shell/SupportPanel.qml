import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The conversation with customer service, slid in over the page.
Panel {
    id: panel

    required property AppModel app
    required property WindowSession session

    readonly property SupportChatModel support: app.support
    readonly property bool watched: Window.active

    function close(): void { session.isSupportOpen = false }
    // What arrives behind another window is not seen.
    function look(): void {
        support.view(panel, !open ? SupportChatModel.Away : watched ? SupportChatModel.Watching : SupportChatModel.Open)
    }

    objectName: "supportPanel"
    title: qsTranslate("Loomstreet", "Customer Service")
    open: session.isSupportOpen
    firstFocus: writing.input
    onCloseAsked: close()
    onOpenChanged: look()
    onWatchedChanged: look()
    Component.onCompleted: look()

    SupportThread {
        id: thread

        anchors.fill: parent
        app: panel.app
        support: panel.support
        shown: panel.open
        onQuestionChosen: text => {
            panel.support.sendText(text)
            toLatest()
        }
    }
    DropArea {
        id: drop

        anchors.fill: parent
        keys: ["text/uri-list"]
        onDropped: event => {
            if (event.urls.length === 0)
                return
            panel.support.attach(event.urls[0])
            event.acceptProposedAction()
            writing.input.forceActiveFocus()
        }

        Rectangle {
            anchors { fill: parent; margins: Theme.space1_5 }
            visible: drop.containsDrag
            color: Theme.accentTint
            radius: Theme.radiusPanel
            border.width: Theme.strokeControl
            border.color: Theme.accent

            TextLabel {
                anchors.centerIn: parent
                width: Math.min(implicitWidth, parent.width - 2 * Theme.space2)
                text: qsTranslate("Loomstreet", "Drop a picture or a PDF here")
                color: Theme.accent
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
            }
        }
    }

    footer: Item {
        width: parent.width
        height: writing.height + 2 * Theme.space1_5

        SupportComposer {
            id: writing

            objectName: "writing"
            anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
            anchors { leftMargin: Theme.space1_5; rightMargin: Theme.space1_5 }
            support: panel.support
            onSent: thread.toLatest()
        }
    }
}
