import QtQuick
import QtWebEngine

// What every web page in the application is held to: it gets no permission, no download, no file and no print, a
// certificate that is not right ends it, and its questions are answered without anyone being asked.
WebEngineView {
    settings.pluginsEnabled: false
    settings.javascriptCanAccessClipboard: false
    settings.localContentCanAccessRemoteUrls: false
    settings.localContentCanAccessFileUrls: false
    settings.screenCaptureEnabled: false
    // The desktop would open what the page names, and hand a sign-in's way back to the application.
    settings.unknownUrlSchemePolicy: WebEngineSettings.DisallowUnknownUrlSchemes

    onFeaturePermissionRequested: (securityOrigin, feature) => grantFeaturePermission(securityOrigin, feature, false)
    // There is nobody to ask before a page is left, and nothing to tell a page that asks.
    onJavaScriptDialogRequested: request => {
        request.accepted = true
        if (request.type === JavaScriptDialogRequest.DialogTypeConfirm || request.type === JavaScriptDialogRequest.DialogTypePrompt)
            request.dialogReject()
        else
            request.dialogAccept()
    }
    onAuthenticationDialogRequested: request => {
        request.accepted = true
        request.dialogReject()
    }
    onFileDialogRequested: request => {
        request.accepted = true
        request.dialogReject()
    }
    onColorDialogRequested: request => {
        request.accepted = true
        request.dialogReject()
    }
    onContextMenuRequested: request => { request.accepted = true }
    onPrintRequested: {}
    onQuotaRequested: request => request.reject()
    onRegisterProtocolHandlerRequested: request => request.reject()
    onCertificateError: error => error.rejectCertificate()
}
