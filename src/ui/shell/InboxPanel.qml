import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Pages
import Loomstreet.Theme

// What the shopper was told, slid in over the page.
Panel {
    id: panel

    required property AppModel app
    required property WindowSession session

    readonly property NotificationsModel inbox: app.makeInbox(panel)

    function close(): void { session.isInboxOpen = false }

    objectName: "inboxPanel"
    title: qsTranslate("Loomstreet", "Notifications")
    open: session.isInboxOpen
    onCloseAsked: close()

    headerActions: [
        IconButton {
            objectName: "markAllRead"
            visible: panel.inbox.hasUnread
            iconName: "checkmark"
            text: qsTranslate("Loomstreet", "Mark all as read")
            onClicked: panel.inbox.markAllRead()
        },
        IconButton {
            objectName: "notificationSettings"
            iconName: "gear"
            text: qsTranslate("Loomstreet", "Notification settings")
            onClicked: {
                panel.close()
                panel.app.showSettings("notifications")
            }
        },
        IconButton {
            objectName: "expandInbox"
            iconName: "expand"
            text: qsTranslate("Loomstreet", "Expand to a Full Page")
            onClicked: {
                panel.close()
                panel.session.selected.openNotifications()
            }
        }
    ]

    NotificationList {
        anchors.fill: parent
        app: panel.app
        session: panel.session
        inbox: panel.inbox
        shown: panel.open
        onDeparted: panel.close()
    }
}
