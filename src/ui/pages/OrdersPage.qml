pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What the customer ordered and sent back.
PageBase {
    id: page

    readonly property OrdersStore store: app.orders
    readonly property OrdersModel orders: context.model
    readonly property bool ready: store.phase === AccountContent.Ready
    readonly property bool nothing: ready && (orders?.isEverythingEmpty ?? true)
    readonly property int rowWidth: Math.min(width - 2 * padding, 1040)
    // What a tab has nothing of.
    readonly property var emptyTitles: [qsTranslate("Loomstreet", "All your orders are hidden"),
                                        qsTranslate("Loomstreet", "Nothing on the way"),
                                        qsTranslate("Loomstreet", "Nothing delivered yet"),
                                        qsTranslate("Loomstreet", "No returns")]

    title: qsTranslate("Loomstreet", "Orders")
    settled: ready || store.phase === AccountContent.NeedsAccount || store.phase === AccountContent.Failed
    flickable: list

    function takeFocus(): void { (nothing ? none : list.visible ? list : ready ? noneOfTab : states).forceActiveFocus() }
    function reload(): void { store.reload() }
    // The keyboard goes on with what follows in the place of the row that went.
    function hide(row: int, id: string): void {
        const held = list.itemAtIndex(row)?.activeFocus ?? false
        store.hide(id)
        if (!held)
            return
        list.currentIndex = Math.min(row, list.count - 1)
        if (list.currentItem)
            list.currentItem.forceActiveFocus(Qt.TabFocusReason)
        else
            takeFocus()
    }

    onShownChanged: if (shown) store.show()
    Component.onCompleted: if (shown) store.show()

    OfflineStrip {
        id: strip

        objectName: "strip"
        width: parent.width
        offline: page.store.isOffline
        canRetry: true
        visible: page.ready && text !== ""
        text: page.store.errorText
        onRetry: page.store.reload()
    }
    OrdersHeader {
        id: header

        anchors { left: parent.left; leftMargin: page.padding; top: strip.visible ? strip.bottom : parent.top }
        width: page.rowWidth
        visible: page.ready && !page.nothing
        narrow: page.narrow
        title: page.title
        orders: page.orders
        listed: page.ready && !page.nothing
        awaiting: page.store.isAwaitingOrder
        onTrackingAsked: page.router.openTracking()
        onReturnsAsked: page.router.openReturns()
    }
    Hairline {
        anchors { left: parent.left; right: parent.right; bottom: list.top }
        visible: list.visible && list.contentY > 0
    }
    ListView {
        id: list

        objectName: "orders"
        anchors { left: parent.left; right: parent.right; top: header.bottom; bottom: parent.bottom }
        visible: page.ready && count > 0
        focus: true
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: true
        bottomMargin: Theme.space8
        model: page.orders
        ScrollBar.vertical: ScrollBar {}

        Accessible.role: Accessible.List
        Accessible.name: page.title

        delegate: OrderRow {
            x: list.LayoutMirroring.enabled ? list.width - page.padding - width : page.padding
            width: page.rowWidth
            narrow: page.narrow
            onOpened: page.router.openOrder(orderId)
            onHideAsked: page.hide(index, orderId)
            onShowAsked: page.store.unhide(orderId)
        }
        removeDisplaced: Transition {
            NumberAnimation { property: "y"; duration: Theme.durationHover }
        }
        FocusFollower { flickable: list }
    }
    EmptyState {
        id: noneOfTab

        objectName: "emptyTab"
        anchors { left: parent.left; right: parent.right; top: header.bottom; bottom: parent.bottom }
        visible: page.ready && !page.nothing && list.count === 0
        iconName: page.orders?.tab === OrdersModel.Returns ? "return" : "shippingbox"
        title: page.emptyTitles[page.orders?.tab ?? 0]
        sentence: page.orders?.hiddenCount > 0 ? qsTranslate("Loomstreet", "Some of them are hidden.") : ""

        PushButton {
            objectName: "showHiddenOnes"
            visible: page.orders?.hiddenCount > 0
            focus: visible
            text: qsTranslate("Loomstreet", "Show hidden orders")
            onClicked: page.orders.showsHidden = true
        }
        PushButton {
            objectName: "allOrders"
            visible: page.orders?.tab !== OrdersModel.All
            text: qsTranslate("Loomstreet", "All orders")
            onClicked: page.orders.tab = OrdersModel.All
        }
    }
    EmptyState {
        id: none

        objectName: "empty"
        anchors.centerIn: parent
        visible: page.nothing
        width: Math.min(parent.width, 480)
        iconName: page.store.isAwaitingOrder ? "clock" : "shippingbox"
        title: page.store.isAwaitingOrder ? qsTranslate("Loomstreet", "Your order is on its way to this page")
                                          : qsTranslate("Loomstreet", "No orders yet")
        sentence: page.store.isAwaitingOrder
                  ? qsTranslate("Loomstreet", "Your new order shows here in a few minutes.")
                  : qsTranslate("Loomstreet", "What you order shows here, with where it is on its way to you.")

        PushButton {
            objectName: "newIn"
            focus: true
            kind: "primary"
            text: qsTranslate("Loomstreet", "New In")
            onClicked: page.router.selectItem(1)
        }
        PushButton {
            objectName: "track"
            text: qsTranslate("Loomstreet", "Track a package")
            onClicked: page.router.openTracking()
        }
    }
    AccountStates {
        id: states

        anchors.fill: parent
        content: page.store
        session: page.session
        shown: page.shown
        iconName: "shippingbox"
        signInTitle: qsTranslate("Loomstreet", "Sign in to see your orders")
        signInSentence: qsTranslate("Loomstreet", "Where they are, what is in them, and how to send something back.")
        guestActionText: qsTranslate("Loomstreet", "Track a package")
        onGuestActionAsked: page.router.openTracking()

        ListHeader {
            id: skeletonHead

            x: states.LayoutMirroring.enabled ? states.width - page.padding - width : page.padding
            width: page.rowWidth
            narrow: page.narrow
            title: page.title
        }
        Row {
            anchors { left: skeletonHead.left; top: skeletonHead.bottom }
            spacing: Theme.space1

            Repeater {
                model: [40, 104, 96, 136]

                Skeleton {
                    required property int modelData

                    width: modelData
                    height: Theme.targetMinimum
                    radius: height / 2
                }
            }
        }
        OrdersSkeleton {
            x: skeletonHead.x
            y: skeletonHead.height + Theme.targetMinimum + Theme.space1_5
            width: page.rowWidth
        }
    }
    UndoBanner {
        readonly property string hidden: page.store.hiddenName

        onHiddenChanged: follow(hidden !== "")
        objectName: "undoHiding"
        inFront: page.shown
        anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; topMargin: Theme.space1_5 }
        iconName: "eye.slash"
        title: hidden
        text: qsTranslate("Loomstreet", "Hidden from your orders on this computer.")
        onActivated: page.store.undoHiding()
        onDismissed: page.store.forgetHiding()
    }
}
