pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Pages
import Loomstreet.Theme

// Paying, in a window of its own: the platform's page below a line that says where one is. The browser engine comes
// with the page and goes with the window.
Window {
    id: window

    required property AppModel app
    required property SystemAppearance systemAppearance
    required property CheckoutModel checkout

    readonly property int phase: checkout.phase
    readonly property bool isOpening: phase === CheckoutModel.Opening

    function applyStyle(): void {}
    // A page that died is left behind with everything it held.
    function makePage(): void {
        page.source = ""
        page.setSource("CheckoutPage.qml", { checkout: checkout, language: app.market.language })
    }

    objectName: "checkoutWindow"
    width: Theme.layoutCheckoutWindow.width
    height: Theme.layoutCheckoutWindow.height
    minimumWidth: 480
    minimumHeight: 480
    title: qsTranslate("Loomstreet", "Checkout")
    color: Theme.surface
    LayoutMirroring.enabled: systemAppearance.isRightToLeft
    LayoutMirroring.childrenInherit: true

    onClosing: {
        page.source = ""
        checkout.close()
    }
    Component.onCompleted: makePage()

    Connections {
        target: window.checkout
        function onAddressChanged(): void { window.makePage() }
        function onEnded(): void { window.close() }
        function onChanged(): void {
            if (window.phase === CheckoutModel.Completed && done.status === Loader.Null)
                done.setSource("CheckoutDone.qml", { checkout: window.checkout })
            if (window.phase === CheckoutModel.Failed)
                page.source = ""
        }
    }
    ThemeInputs {
        settings: window.app.settings
        system: window.systemAppearance
    }
    Shortcut {
        sequence: "Ctrl+W"
        onActivated: window.close()
    }
    Shortcut {
        sequence: "Ctrl+Q"
        onActivated: window.app.quitRequested()
    }

    Item {
        anchors.fill: parent

        Item {
            id: header

            anchors { left: parent.left; right: parent.right; top: parent.top }
            height: 48

            IconButton {
                id: reload

                objectName: "reloadCheckout"
                anchors { left: parent.left; leftMargin: Theme.space1_5; verticalCenter: parent.verticalCenter }
                enabled: window.phase !== CheckoutModel.Completed
                iconName: "arrow.clockwise"
                text: qsTranslate("Loomstreet", "Reload This Page")
                onClicked: window.checkout.reload()
            }
            Rectangle {
                id: line

                anchors { left: reload.right; leftMargin: Theme.space1; right: promise.left; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }
                height: 32
                radius: height / 2
                color: Theme.sunken

                Icon {
                    id: lock

                    anchors { left: parent.left; leftMargin: Theme.space2; verticalCenter: parent.verticalCenter }
                    name: window.checkout.isSecure ? "lock" : "warning"
                    size: 16
                    color: window.checkout.isSecure ? Theme.accent : Theme.danger
                }
                TextLabel {
                    id: connection

                    objectName: "connection"
                    anchors { left: lock.right; leftMargin: Theme.space1; right: parent.right; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }
                    text: window.checkout.connectionText
                    type: Theme.type.label
                }
            }
            TextLabel {
                id: promise

                anchors { right: parent.right; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }
                width: visible ? implicitWidth : 0
                // Only where it leaves room for where one is.
                visible: window.width >= Math.max(760, implicitWidth + connection.implicitWidth + Theme.space4 + 112)
                text: qsTranslate("Loomstreet", "Secure checkout on Shopify  ·  Your cart stays as it is")
                type: Theme.type.small
                color: Theme.muted
            }
            Hairline {
                anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
            }
        }
        Item {
            id: body

            anchors { left: parent.left; right: parent.right; top: header.bottom; bottom: parent.bottom }

            // A page can follow a link by itself; where it leads out, the shopper is asked.
            CartNotice {
                id: leaving

                objectName: "leaving"
                anchors { left: parent.left; right: parent.right; top: parent.top; leftMargin: Theme.space2; rightMargin: Theme.space1 }
                sentence: window.checkout.refusedHost === "" || window.phase !== CheckoutModel.Page ? ""
                          : qsTranslate("Loomstreet", "A link of this page leads out of the checkout, to %1.")
                            .arg(window.checkout.refusedHost)
                tone: Theme.ink
                actionText: qsTranslate("Loomstreet", "Open in Browser")
                dismissable: true
                onActed: window.checkout.openRefusedLink()
                onDismissed: window.checkout.forgetRefusedLink()
            }
            Loader {
                id: page

                objectName: "page"
                anchors { left: parent.left; right: parent.right; top: leaving.bottom; bottom: parent.bottom }
                focus: true
                enabled: !window.isOpening
                onStatusChanged: if (status === Loader.Error) window.checkout.loadFailed("")
            }
            Rectangle {
                objectName: "opening"
                anchors.fill: parent
                visible: window.isOpening
                color: Theme.surface

                Column {
                    anchors.centerIn: parent
                    spacing: Theme.space2

                    Spinner {
                        anchors.horizontalCenter: parent.horizontalCenter
                        running: window.isOpening
                    }
                    TextLabel {
                        objectName: "openingText"
                        text: qsTranslate("Loomstreet", "Opening checkout…")
                        color: Theme.muted
                    }
                }
            }
            ErrorState {
                objectName: "checkoutFailed"
                anchors.fill: parent
                visible: window.phase === CheckoutModel.Failed
                title: qsTranslate("Loomstreet", "Checkout can't be shown here")
                sentence: window.checkout.errorText
                onRetry: window.checkout.reload()

                PushButton {
                    objectName: "continueInBrowser"
                    text: qsTranslate("Loomstreet", "Continue in Browser")
                    onClicked: window.checkout.continueInBrowser()
                }
            }
            Loader {
                id: done

                readonly property var made: item

                anchors.fill: parent
                onLoaded: made.closeAsked.connect(window.close)
            }
        }
    }
}
