pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The bag: as a panel one column, on a page of its own the lines with their sum beside them.
FocusScope {
    id: inspector

    required property AppModel app
    required property WindowSession session
    property bool beside: false // the sum stands beside the lines
    property int padding: Theme.space3
    readonly property int sumPadding: beside ? Theme.space3 : padding
    property color backdrop: Theme.surface

    readonly property CartModel cart: app.cart
    readonly property int presentation: cart.presentation
    readonly property bool hasLines: presentation === CartModel.Lines
    readonly property real restHeight: shipping.height + offers.height + sum.height + 2 * Theme.space1
    readonly property bool cramped: hasLines && !beside && height - restHeight < 176
    readonly property int sumWidth: beside ? Theme.layoutBuyBox : width

    signal shoppingContinued()
    signal pieceOpened(string handle)

    // Waits, so that what comes at once shows no wait.
    Timer {
        id: patience

        interval: 150
        running: inspector.presentation === CartModel.Loading
    }
    Column {
        objectName: "loading"
        anchors { fill: parent; margins: inspector.padding }
        visible: inspector.presentation === CartModel.Loading && !patience.running
        spacing: Theme.space2

        Skeleton { width: 140; height: 20 }
        Repeater {
            model: 3

            Row {
                spacing: Theme.space2

                Skeleton { width: 72; height: 96 }
                Column {
                    spacing: Theme.space1

                    Skeleton { width: 96; height: 14 }
                    Skeleton { width: 200; height: 20 }
                    Skeleton { width: 72; height: 14 }
                }
            }
        }
    }
    ErrorState {
        objectName: "failed"
        anchors.fill: parent
        visible: inspector.presentation === CartModel.Failed
        title: qsTranslate("Loomstreet", "Couldn't load your cart")
        sentence: qsTranslate("Loomstreet", "Your items are safe. Check your connection and try again.")
        onRetry: inspector.cart.refresh()
    }
    EmptyState {
        objectName: "empty"
        anchors.fill: parent
        visible: inspector.presentation === CartModel.Empty
        iconName: "bag"
        backdrop: inspector.backdrop
        title: qsTranslate("Loomstreet", "Your cart is empty")
        sentence: qsTranslate("Loomstreet", "Items you add will show up here.")

        PushButton {
            objectName: "continueEmpty"
            text: qsTranslate("Loomstreet", "Continue Shopping")
            onClicked: inspector.shoppingContinued()
        }
    }

    // Where too little room would be left for the lines, all of it scrolls.
    Flickable {
        id: flick

        anchors.fill: parent
        contentHeight: stage.height
        interactive: inspector.cramped
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        ScrollBar.vertical: ScrollBar { visible: inspector.cramped }

        FocusFollower { flickable: flick }

        Item {
            id: stage

            width: flick.width
            height: inspector.cramped ? inspector.restHeight + lines.fullHeight : flick.height

            Column {
                id: shipping

                anchors { left: inspector.beside ? sum.left : parent.left; right: parent.right; top: parent.top }
                visible: inspector.hasLines && inspector.cart.hasShipping
                height: visible ? implicitHeight : 0

                CartShipping {
                    anchors { left: parent.left; right: parent.right; margins: inspector.sumPadding }
                    topPadding: Theme.space2
                    bottomPadding: Theme.space2
                    cart: inspector.cart
                }
                Hairline { width: parent.width }
            }
            CartLines {
                id: lines

                anchors { left: parent.left; leftMargin: inspector.padding }
                anchors { top: inspector.beside ? parent.top : shipping.bottom; topMargin: Theme.space1; bottom: offers.top }
                width: parent.width - (inspector.beside ? sum.width : 0) - 2 * inspector.padding
                visible: inspector.hasLines
                cart: inspector.cart
                backdrop: inspector.backdrop
                unrolled: inspector.cramped
                onPieceOpened: handle => inspector.pieceOpened(handle)
            }
            // What was taken out can be put back, also into an empty cart.
            Column {
                id: offers

                anchors { left: lines.left; right: lines.right }
                anchors { bottom: inspector.beside || !inspector.hasLines ? parent.bottom : sum.top }
                anchors { bottomMargin: height > 0 ? Theme.space1 : 0 }

                CartNotice {
                    objectName: "cartError"
                    width: parent.width
                    sentence: inspector.presentation === CartModel.Failed ? "" : inspector.cart.errorText
                    iconName: "warning"
                    tone: Theme.danger
                }
                CartNotice {
                    objectName: "undo"
                    width: parent.width
                    sentence: inspector.cart.removedTitle === "" ? ""
                              : qsTranslate("Loomstreet", "%1 was taken out.").arg(inspector.cart.removedTitle)
                    iconName: "trash"
                    tone: Theme.ink
                    actionText: qsTranslate("Loomstreet", "Undo")
                    onActed: inspector.cart.undoRemoval()
                }
                CartNotice {
                    objectName: "lost"
                    width: parent.width
                    sentence: inspector.cart.lostCount === 0 ? ""
                              : qsTranslate("Loomstreet", "Your earlier cart has expired. %Ln items were in it.", "", inspector.cart.lostCount)
                    tone: Theme.ink
                    actionText: qsTranslate("Loomstreet", "Put back")
                    busy: inspector.cart.isPuttingBack
                    dismissable: true
                    onActed: inspector.cart.restoreLostLines()
                    onDismissed: inspector.cart.forgetLostLines()
                }
            }
            Item {
                id: sum

                anchors { right: parent.right; bottom: parent.bottom }
                anchors { top: inspector.beside ? shipping.bottom : undefined }
                width: inspector.sumWidth
                height: summary.height + 2 * Theme.space2
                visible: inspector.hasLines

                Hairline {
                    anchors { left: parent.left; right: parent.right }
                    visible: !inspector.beside
                }
                Hairline {
                    anchors { top: parent.top; topMargin: -shipping.height; bottom: parent.bottom; left: parent.left }
                    width: Theme.strokeHairline
                    visible: inspector.beside
                }
                CartSummary {
                    id: summary

                    anchors { left: parent.left; right: parent.right; leftMargin: inspector.sumPadding; rightMargin: inspector.sumPadding }
                    y: Theme.space2
                    app: inspector.app
                    session: inspector.session
                    onShoppingContinued: inspector.shoppingContinued()
                }
            }
        }
    }
}
