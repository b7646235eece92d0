import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// All that the shopper was told.
PageBase {
    id: page

    readonly property NotificationsModel inbox: app.makeInbox(page)
    readonly property int rowWidth: 760

    title: qsTranslate("Loomstreet", "Notifications")
    settled: !list.waiting
    flickable: list.flickable

    function takeFocus(): void { list.forceActiveFocus() }
    function reload(): void { inbox.account.reload() }

    ListHeader {
        id: header

        x: page.padding
        width: page.width - 2 * page.padding
        narrow: page.narrow
        title: page.title

        PushButton {
            objectName: "markAllRead"
            visible: page.inbox.hasUnread
            size: "small"
            iconName: "checkmark"
            text: qsTranslate("Loomstreet", "Mark all as read")
            onClicked: page.inbox.markAllRead()
        }
        IconButton {
            objectName: "notificationSettings"
            iconName: "gear"
            text: qsTranslate("Loomstreet", "Notification settings")
            onClicked: page.app.showSettings("notifications")
        }
    }
    NotificationList {
        id: list

        anchors { left: parent.left; leftMargin: page.padding - inset; top: header.bottom; bottom: parent.bottom }
        width: Math.min(page.rowWidth + 2 * inset, page.width - 2 * (page.padding - inset))
        inset: Theme.space2
        app: page.app
        session: page.session
        inbox: page.inbox
        shown: page.shown
        backdrop: Theme.paper
    }
}
