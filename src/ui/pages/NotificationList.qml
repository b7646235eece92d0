pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What the shopper was told, by its tabs and days: in the panel and on the page.
FocusScope {
    id: list

    required property AppModel app
    required property WindowSession session
    required property var inbox // a NotificationsModel
    property bool shown: false
    property int inset: Theme.space3
    property color backdrop: Theme.surface

    readonly property var account: inbox.account
    // Under a tab without rows older pages are read, which may have some.
    readonly property bool waiting: account.phase === AccountContent.Waiting && inbox.isEverythingEmpty
                                    || account.isLoadingMore && inbox.count === 0
    readonly property bool failed: account.phase === AccountContent.Failed && inbox.isEverythingEmpty
    readonly property bool guest: account.phase === AccountContent.NeedsAccount
    readonly property bool empty: inbox.count === 0 && !waiting && !failed
    readonly property alias flickable: rows

    // The shopper went where a piece of news leads.
    signal departed()

    function look(): void {
        if (!shown)
            return
        account.show()
        inbox.refreshDays()
    }
    function open(row: int, link: string, isSupport: bool): void {
        inbox.markRead(row)
        if (isSupport) {
            list.departed()
            session.isSupportOpen = true
        } else if (link !== "") {
            list.departed()
            session.selected.openNotice(link)
        }
    }

    onShownChanged: look()
    Component.onCompleted: look()

    Flow {
        id: tabs

        objectName: "tabs"
        anchors { left: parent.left; right: parent.right; top: parent.top; leftMargin: Math.min(list.inset, Theme.space2); rightMargin: Math.min(list.inset, Theme.space2); topMargin: Theme.space1_5 }
        spacing: Theme.space1

        Accessible.role: Accessible.PageTabList
        Accessible.name: qsTranslate("Loomstreet", "Show")

        Repeater {
            model: [
                qsTranslate("Loomstreet", "All"),
                qsTranslate("Loomstreet", "System"),
                qsTranslate("Loomstreet", "Customer service"),
                qsTranslate("Loomstreet", "Vessa")
            ]

            Chip {
                required property int index
                required property string modelData

                objectName: "tab" + index
                text: index === 0 && list.app.badge.count > 0 ? modelData + " · " + list.app.badge.text : modelData
                selected: list.inbox.tab === index
                onClicked: list.inbox.tab = index

                Accessible.role: Accessible.PageTab
                Accessible.selected: selected
            }
        }
    }
    Hairline {
        id: line

        anchors { left: parent.left; right: parent.right; top: tabs.bottom; topMargin: Theme.space1_5 }
    }
    OfflineStrip {
        id: strip

        objectName: "strip"
        anchors { left: parent.left; right: parent.right; top: line.bottom }
        height: visible ? implicitHeight : 0
        offline: list.account.isOffline
        canRetry: true
        visible: text !== "" && !list.failed && !list.waiting && !list.guest
        text: list.account.errorText
        onRetry: list.account.reload()
    }
    ListView {
        id: rows

        objectName: "notifications"
        anchors { left: parent.left; right: parent.right; top: strip.bottom; bottom: parent.bottom }
        visible: count > 0
        focus: true
        model: list.inbox
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: true
        reuseItems: true
        clip: true
        ScrollBar.vertical: ScrollBar {}

        FocusFollower { flickable: rows }

        Accessible.role: Accessible.List
        Accessible.name: qsTranslate("Loomstreet", "Notifications")

        onAtYEndChanged: if (atYEnd && list.inbox.canLoadMore) list.inbox.loadMore()

        bottomMargin: end.height
        section.property: "section"
        delegate: NotificationEntry {
            width: rows.width
            inset: list.inset
            onOpened: list.open(index, link, isSupport)
        }

        NotificationEnd {
            id: end

            parent: rows.contentItem
            y: rows.originY + rows.contentHeight
            width: rows.width
            inset: list.inset
            busy: list.account.isLoadingMore
            sentence: list.account.moreErrorText
            guest: list.guest
            onRetry: list.inbox.loadMore()
            onSignInAsked: list.session.isSignInPresented = true
        }
    }
    Column {
        anchors { left: parent.left; right: parent.right; top: line.bottom; margins: list.inset }
        visible: list.waiting && late.elapsed
        spacing: Theme.space3

        Repeater {
            model: 5

            Row {
                spacing: Theme.space1_5

                Skeleton { width: 36; height: 36; radius: 18 }
                Column {
                    spacing: Theme.space1

                    Skeleton { anchors.left: parent?.left; width: 180; height: 14 }
                    Skeleton { anchors.left: parent?.left; width: 240; height: 12 }
                }
            }
        }
    }
    Timer {
        id: late

        property bool elapsed: false

        interval: 150
        running: list.waiting && list.shown && !elapsed
        onTriggered: elapsed = true
    }
    EmptyState {
        objectName: "empty"
        anchors { left: parent.left; right: parent.right; top: line.bottom; bottom: parent.bottom }
        visible: list.empty
        iconName: "bell"
        backdrop: list.backdrop
        title: list.guest && list.inbox.isEverythingEmpty ? qsTranslate("Loomstreet", "Sign in to see your notifications")
                                                         : qsTranslate("Loomstreet", "Nothing new")
        sentence: list.guest && list.inbox.isEverythingEmpty
                  ? qsTranslate("Loomstreet", "Orders on their way, pieces back in stock and lower prices are told here.")
                  : qsTranslate("Loomstreet", "What concerns your orders and the pieces you follow will be here.")

        PushButton {
            objectName: "signIn"
            visible: list.guest
            kind: "primary"
            text: qsTranslate("Loomstreet", "Sign in")
            onClicked: list.session.isSignInPresented = true
        }
    }
    ErrorState {
        objectName: "error"
        anchors { left: parent.left; right: parent.right; top: line.bottom; bottom: parent.bottom }
        visible: list.failed
        sentence: list.account.errorText
        busy: list.account.isLoading
        takesFocus: list.shown
        onRetry: list.account.reload()
    }
}
