pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What the shopper asked to be told of: pieces that are to come back, prices that are to fall.
PageBase {
    id: page

    readonly property AlertsStore alerts: app.alerts
    readonly property bool ready: alerts.phase === AccountContent.Ready
    readonly property bool empty: ready && alerts.list.count === 0

    title: qsTranslate("Loomstreet", "Alerts")
    settled: ready || alerts.phase === AccountContent.NeedsAccount || alerts.phase === AccountContent.Failed
    flickable: scroller

    function takeFocus(): void { (empty ? nothing : ready ? scroller : states).forceActiveFocus() }
    function reload(): void { alerts.reload() }
    // The keyboard goes on with what follows in the place of the row that went.
    function remove(row: int): void {
        const held = rows.itemAt(row)?.activeFocus ?? false
        alerts.removeRow(row)
        if (held)
            (rows.itemAt(Math.min(row, rows.count - 1)) ?? nothing).forceActiveFocus(Qt.OtherFocusReason)
    }

    // What stood in its place held the keyboard.
    onReadyChanged: if (ready && activeFocus) takeFocus()
    onShownChanged: if (shown) alerts.show()
    Component.onCompleted: if (shown) alerts.show()

    OfflineStrip {
        id: strip

        objectName: "strip"
        width: parent.width
        offline: page.alerts.isOffline
        canRetry: true
        visible: page.ready && text !== ""
        text: page.alerts.errorText
        onRetry: page.alerts.reload()
    }
    Flickable {
        id: scroller

        objectName: "scroller"
        anchors { left: parent.left; right: parent.right; top: strip.visible ? strip.bottom : parent.top; bottom: parent.bottom }
        visible: page.ready && !page.empty
        focus: true
        contentHeight: body.height + page.padding
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        ScrollBar.vertical: ScrollBar {}

        FocusFollower { flickable: scroller }

        Column {
            id: body

            x: page.padding
            width: scroller.width - 2 * page.padding

            ListHeader {
                width: parent.width
                height: implicitHeight - Theme.space1_5
                narrow: page.narrow
                title: page.title
                note: qsTranslate("Loomstreet", "%Ln alerts", "", page.alerts.list.count)
            }
            TextLabel {
                anchors.left: parent.left
                width: Math.min(parent.width, Theme.layoutReadingMeasure)
                bottomPadding: Theme.space2
                text: qsTranslate("Loomstreet", "We email you at %1 when a piece is back, or its price falls.").arg(Bidi.isolate(page.app.auth.email))
                color: Theme.muted
                wrapMode: Text.Wrap
            }
            CartNotice {
                objectName: "refused"
                anchors.left: parent.left
                width: Math.min(parent.width, page.rowWidth)
                sentence: page.alerts.changeErrorText
                iconName: "warning"
                tone: Theme.danger
                dismissable: true
                onDismissed: page.alerts.forgetChangeError()
            }
            Column {
                objectName: "rows"
                anchors.left: parent.left
                width: Math.min(parent.width, page.rowWidth)
                move: Transition {
                    NumberAnimation { property: "y"; duration: Theme.durationHover }
                }

                Accessible.role: Accessible.List
                Accessible.name: page.title

                Hairline { width: parent.width }
                Repeater {
                    id: rows

                    model: page.alerts.list

                    AlertRow {
                        width: parent?.width ?? 0
                        onOpened: mode => page.router.openPiece(handle, undefined, mode)
                        onRemoveAsked: page.remove(index)
                    }
                }
            }
        }
    }
    EmptyState {
        id: nothing

        objectName: "empty"
        anchors.centerIn: parent
        visible: page.empty
        width: Math.min(parent.width, 480)
        iconName: "bell"
        title: qsTranslate("Loomstreet", "No alerts yet")
        sentence: qsTranslate("Loomstreet", "On a piece that is sold out in your size, press “Notify me when it's back”. On any other, “Tell me about a price drop”.")

        PushButton {
            objectName: "newIn"
            focus: true
            text: qsTranslate("Loomstreet", "New In")
            onClicked: page.router.selectItem(1)
        }
        PushButton {
            objectName: "wishlist"
            text: qsTranslate("Loomstreet", "Wishlist")
            onClicked: page.router.openWishlist()
        }
    }
    AccountStates {
        id: states

        anchors.fill: parent
        content: page.alerts
        session: page.session
        shown: page.shown
        iconName: "bell"
        signInTitle: qsTranslate("Loomstreet", "Sign in to see your alerts")
        signInSentence: qsTranslate("Loomstreet", "We tell you when a piece is back in your size, or costs less.")

        AlertsSkeleton {
            anchors.fill: parent
            padding: page.padding
            narrow: page.narrow
            title: page.title
            rowWidth: page.rowWidth
        }
    }
    UndoBanner {
        readonly property int removed: page.alerts.removedCount

        // What is taken out while the banner stands comes back with the rest.
        onRemovedChanged: follow(removed > 0)
        objectName: "undoAlert"
        inFront: page.shown
        anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; topMargin: Theme.space1_5 }
        iconName: "bell"
        title: removed === 1 ? page.alerts.removedTitle : qsTranslate("Loomstreet", "%Ln alerts", "", removed)
        text: qsTranslate("Loomstreet", "We won't email you about them.", "", removed)
        onActivated: page.alerts.undoRemoval()
        onDismissed: page.alerts.forgetRemoval()
    }

    readonly property int rowWidth: 760
}
