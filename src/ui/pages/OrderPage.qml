pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// One order: how far it has come, its pieces, its packages, what came back, and what it cost.
PageBase {
    id: page

    readonly property OrdersStore store: app.orders
    readonly property OrderModel order: context.model
    readonly property int phase: order ? order.phase : OrderModel.Waiting
    readonly property bool found: phase === OrderModel.Found
    readonly property int room: Math.min(width - 2 * padding, 1120)
    readonly property bool stacked: room < 760
    readonly property int sideWidth: stacked ? room : 304
    readonly property int mainWidth: stacked ? room : room - sideWidth - Theme.space6

    title: found ? qsTranslate("Loomstreet", "Order %1").arg(order.name) : qsTranslate("Loomstreet", "Order")
    settled: phase !== OrderModel.Waiting
    flickable: flick

    function takeFocus(): void { (found ? flick : phase === OrderModel.Missing ? missing : states).forceActiveFocus() }
    function reload(): void { store.reload() }

    onShownChanged: if (shown) store.show()
    Component.onCompleted: if (shown) store.show()

    component Heading: TextLabel {
        width: parent?.width ?? 0
        topPadding: evenPadding + Theme.space1
        type: Theme.type.section
        Accessible.role: Accessible.Heading
    }

    OfflineStrip {
        id: strip

        objectName: "strip"
        width: parent.width
        offline: page.store.isOffline
        canRetry: true
        visible: page.found && text !== ""
        text: page.store.errorText
        onRetry: page.store.reload()
    }
    Flickable {
        id: flick

        objectName: "flick"
        anchors { left: parent.left; right: parent.right; top: strip.visible ? strip.bottom : parent.top; bottom: parent.bottom }
        visible: page.found
        focus: true
        contentHeight: Math.max(main.y + main.height, side.y + side.height) + Theme.space8
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        ScrollBar.vertical: ScrollBar {}

        FocusFollower { flickable: flick }

        Column {
            id: main

            anchors { left: parent.left; leftMargin: page.padding }
            y: Theme.space3
            width: page.mainWidth
            spacing: Theme.space4

            Column {
                width: parent.width
                spacing: Theme.spaceHalf

                TextLabel {
                    objectName: "title"
                    width: parent.width
                    text: page.title
                    type: page.narrow ? Theme.type.heading : Theme.type.title
                    wrapMode: Text.Wrap
                    maximumLineCount: 2
                    Accessible.role: Accessible.Heading
                }
                TextLabel {
                    width: parent.width
                    text: page.order ? qsTranslate("Loomstreet", "Placed on %1").arg(page.order.date) : ""
                    color: Theme.muted
                }
            }
            OrderSteps {
                objectName: "steps"
                width: parent.width
                visible: texts.length > 0
                texts: page.order?.steps ?? []
                current: page.order?.step ?? -1
            }
            StatusLine {
                width: parent.width
                visible: page.order !== null && page.order.step < 0
                text: page.order?.status ?? ""
                tone: page.order?.tone ?? ""
                type: Theme.type.bodyStrong
            }
            Column {
                width: parent.width
                visible: packages.count > 0

                Heading { text: qsTranslate("Loomstreet", "Packages", "", packages.count) }
                Repeater {
                    id: packages

                    model: page.order?.packages ?? []

                    OrderPackage {
                        width: page.mainWidth
                        onClicked: page.router.openPackage(modelData.number, modelData.carrier)
                    }
                }
            }
            Column {
                width: parent.width
                visible: pieces.count > 0

                Heading { text: qsTranslate("Loomstreet", "Pieces") }
                Repeater {
                    id: pieces

                    model: page.order?.lines ?? []

                    OrderPiece {
                        width: page.mainWidth
                        onOpened: mode => page.router.openPiece(modelData.handle, undefined, mode)
                    }
                }
            }
            Column {
                width: parent.width
                visible: refunds.count > 0

                Heading { text: qsTranslate("Loomstreet", "Returns & refunds") }
                Repeater {
                    id: refunds

                    model: page.order?.refunds ?? []

                    OrderRefund { width: page.mainWidth }
                }
            }
        }
        OrderSummary {
            id: side

            anchors { left: page.stacked ? main.left : main.right; leftMargin: page.stacked ? 0 : Theme.space6 }
            y: page.stacked ? main.y + main.height + Theme.space4 : main.y + Theme.space1
            width: page.sideWidth
            order: page.order
            onReturnAsked: page.router.openReturns()
        }
        Hairline {
            anchors { left: side.left; leftMargin: -Theme.space3 }
            y: main.y
            height: side.height + 2 * Theme.space1
            visible: !page.stacked
        }
    }
    EmptyState {
        id: missing

        objectName: "missing"
        anchors.centerIn: parent
        visible: page.phase === OrderModel.Missing
        width: Math.min(parent.width, 480)
        iconName: page.store.isAwaitingOrder ? "clock" : "shippingbox"
        title: qsTranslate("Loomstreet", "This order isn't here")
        sentence: page.store.isAwaitingOrder ? qsTranslate("Loomstreet", "Your new order shows here in a few minutes.")
                                             : qsTranslate("Loomstreet", "It may belong to another account.")

        PushButton {
            objectName: "orders"
            focus: true
            text: qsTranslate("Loomstreet", "Orders")
            onClicked: page.router.openOrders()
        }
    }
    AccountStates {
        id: states

        anchors.fill: parent
        visible: page.phase === OrderModel.Waiting || page.phase === OrderModel.NeedsAccount || page.phase === OrderModel.Failed
        content: page.store
        session: page.session
        shown: page.shown
        iconName: "shippingbox"
        signInTitle: qsTranslate("Loomstreet", "Sign in to see this order")
        signInSentence: qsTranslate("Loomstreet", "A package can be followed by its number without an account.")
        guestActionText: qsTranslate("Loomstreet", "Track a package")
        onGuestActionAsked: page.router.openTracking()

        OrderSkeleton {
            anchors { left: parent.left; leftMargin: page.padding; top: parent.top; topMargin: Theme.space3 }
            width: page.room
            stacked: page.stacked
        }
    }
}
