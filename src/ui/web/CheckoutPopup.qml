import QtQuick
import QtWebEngine
import Loomstreet.Components
import Loomstreet.Theme

// A window that the checkout page opened, as banks and wallets do: shown over the page, with where it leads written
// above. It opens no further ones.
FocusScope {
    id: popup

    required property WebEngineProfile profile

    readonly property alias view: web
    readonly property string host: (web.url.toString().match(/^https:\/\/([^/?#]*)/) ?? ["", ""])[1]

    signal closed()

    objectName: "checkoutPopup"

    Rectangle {
        anchors.fill: parent
        color: Theme.surface
    }
    Item {
        id: header

        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: 40

        Icon {
            id: lock

            anchors { left: parent.left; leftMargin: Theme.space2; verticalCenter: parent.verticalCenter }
            name: popup.host !== "" ? "lock" : "warning"
            size: 16
            color: popup.host !== "" ? Theme.accent : Theme.danger
        }
        TextLabel {
            objectName: "popupConnection"
            anchors { left: lock.right; leftMargin: Theme.space1; right: close.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
            text: popup.host !== "" ? qsTranslate("Loomstreet", "Secure connection to %1").arg(popup.host)
                                    : qsTranslate("Loomstreet", "Connection is not secure")
            type: Theme.type.label
        }
        IconButton {
            id: close

            objectName: "closePopup"
            anchors { right: parent.right; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
            iconName: "xmark"
            text: qsTranslate("Loomstreet", "Close")
            onClicked: popup.closed()
        }
        Hairline {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        }
    }
    GuardedWebView {
        id: web

        objectName: "popupView"
        anchors { left: parent.left; right: parent.right; top: header.bottom; bottom: parent.bottom }
        focus: true
        profile: popup.profile

        onNavigationRequested: request => {
            const address = request.url.toString()
            if (!request.isMainFrame || address.startsWith("https://") || address === "about:blank")
                request.accept()
            else
                request.reject()
        }
        onNewWindowRequested: {}
        onWindowCloseRequested: popup.closed()
        onRenderProcessTerminated: popup.closed()
    }
}
