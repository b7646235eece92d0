import QtQuick
import QtWebEngine
import Loomstreet.Web

// A page of the store's own site. It stays on that page: where its links lead is for the application to say.
GuardedWebView {
    id: view

    required property string storeAddress
    property url address
    property real restoredScrollY: 0
    property string language: "en"

    readonly property string failure: lastFailure
    property string lastFailure

    signal linkActivated(string link)

    // Links that a page follows by itself while it loads, such as a redirect within the store, are not the shopper's.
    function isOwnMove(request: var): bool {
        return !request.isMainFrame || request.navigationType === WebEngineNavigationRequest.RedirectNavigation
            || request.navigationType === WebEngineNavigationRequest.ReloadNavigation
            || request.url.toString() === view.address.toString()
            || (request.navigationType !== WebEngineNavigationRequest.LinkClickedNavigation
                && request.navigationType !== WebEngineNavigationRequest.FormSubmittedNavigation)
    }

    onLanguageChanged: if (url.toString() !== "") reload()

    // Nothing loads before the guard stands.
    url: guard.isReady ? address : ""
    profile: WebEngineProfile {
        id: own

        offTheRecord: true
        httpCacheType: WebEngineProfile.MemoryHttpCache
        httpAcceptLanguage: view.language === "en" ? "en" : view.language + ",en"
        onDownloadRequested: download => download.cancel()
    }

    property StoreHostGuard guard: StoreHostGuard {
        profile: own
        storeAddress: view.storeAddress
    }

    settings.javascriptCanOpenWindows: false
    settings.fullScreenSupportEnabled: false
    settings.webGLEnabled: false

    onNavigationRequested: request => {
        if (isOwnMove(request)) {
            request.accept()
            return
        }
        request.reject()
        linkActivated(request.url.toString())
    }
    onNewWindowRequested: request => linkActivated(request.requestedUrl.toString())
    onRenderProcessTerminated: lastFailure = "gone"
    onLoadingChanged: info => {
        if (info.status === WebEngineView.LoadStartedStatus)
            lastFailure = ""
        else if (info.status === WebEngineView.LoadFailedStatus)
            lastFailure = info.errorString === "" ? "failed" : info.errorString
        else if (info.status === WebEngineView.LoadSucceededStatus && restoredScrollY > 0)
            runJavaScript("window.scrollTo(0, " + Math.round(restoredScrollY) + ")")
    }
}
