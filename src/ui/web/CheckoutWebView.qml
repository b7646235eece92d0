import QtQuick
import QtWebEngine

// The platform's checkout page. Where it may go is for the model to judge; windows that a bank or a wallet opens
// stand over it, and go when they are done.
Item {
    id: holder

    required property var checkout
    required property string language

    readonly property alias view: web

    focus: true
    Accessible.ignored: true

    WebEngineProfile {
        id: own

        offTheRecord: true
        httpCacheType: WebEngineProfile.MemoryHttpCache
        httpAcceptLanguage: holder.language === "en" ? "en" : holder.language + ",en"
        httpUserAgent: holder.checkout.userAgent
        onDownloadRequested: download => download.cancel()
    }
    GuardedWebView {
        id: web

        objectName: "checkoutView"
        anchors.fill: parent
        focus: true
        visible: popup.item === null
        profile: own
        url: holder.checkout.address

        onNavigationRequested: request => {
            // Frames are the page's own affair: the bank's questions live in them.
            if (!request.isMainFrame || holder.checkout.mayNavigate(request.url))
                request.accept()
            else
                request.reject()
        }
        onNewWindowRequested: request => {
            // Nothing opens that the shopper did not ask for, and nothing that cannot be seen to be safe.
            if (request.userInitiated && popup.item === null)
                popup.open(request)
        }
        onRenderProcessTerminated: (status, code) => {
            if (status !== WebEngineView.NormalTerminationStatus)
                holder.checkout.rendererGone()
        }
        onLoadingChanged: info => {
            switch (info.status) {
            case WebEngineView.LoadStartedStatus:
                holder.checkout.loadStarted(info.url)
                break
            case WebEngineView.LoadSucceededStatus:
                if (holder.checkout.loadFinished(info.url))
                    web.readText()
                break
            case WebEngineView.LoadStoppedStatus:
                // The address alone does not tell whether a document is there: it is shown from the first request on.
                if (holder.checkout.loadStopped(web.history.items.rowCount() > 0 ? web.url : ""))
                    web.readText()
                break
            case WebEngineView.LoadFailedStatus:
                holder.checkout.loadFailed(info.errorString)
                break
            }
        }

        // As much of it as an order number could stand in.
        function readText(): void {
            runJavaScript("document.body.innerText.slice(0, 200000)", text => {
                if (typeof text === "string")
                    holder.checkout.readConfirmation(text)
            })
        }
    }
    Loader {
        id: popup

        function open(request: var): void {
            setSource("CheckoutPopup.qml", { profile: own })
            item.closed.connect(() => {
                popup.source = ""
                web.forceActiveFocus()
            })
            request.openIn(item.view)
            item.forceActiveFocus()
        }

        anchors.fill: parent
    }
}
