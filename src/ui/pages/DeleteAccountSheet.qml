import QtQuick
import Loomstreet.Components
import Loomstreet.Model

// Before the account is deleted: the shopper types its address.
QuestionSheet {
    id: sheet

    required property AuthStore auth
    required property AccountRemoval removal

    objectName: "deleteAccountSheet"
    title: qsTranslate("Loomstreet", "Delete your account?")
    sentence: qsTranslate("Loomstreet", "Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.")
    firstFocus: typed
    onOpenChanged: if (open) removal.reset()

    Connections {
        target: sheet.auth
        function onSessionChanged(): void {
            if (sheet.open && !sheet.auth.isSignedIn)
                sheet.closeAsked()
        }
    }
    FieldInput {
        id: typed

        objectName: "typedEmail"
        anchors { left: parent?.left; right: parent?.right }
        label: qsTranslate("Loomstreet", "Type your email address to confirm")
        message: LayoutMirroring.enabled ? Bidi.isolate(sheet.auth.email) : sheet.auth.email
        text: sheet.removal.typed
        error: sheet.removal.errorText
        readOnly: sheet.removal.isBusy
        maximumLength: 1000
        inputMethodHints: Qt.ImhEmailCharactersOnly | Qt.ImhNoAutoUppercase | Qt.ImhNoPredictiveText
        onEdited: text => { sheet.removal.typed = text }
        onAccepted: sheet.removal.remove()
    }

    answers: [
        PushButton {
            objectName: "confirmDelete"
            kind: "danger"
            enabled: sheet.removal.isConfirmed || busy
            busy: sheet.removal.isBusy
            text: qsTranslate("Loomstreet", "Delete account")
            onClicked: sheet.removal.remove()
        },
        PushButton {
            objectName: "cancel"
            text: qsTranslate("Loomstreet", "Cancel")
            onClicked: sheet.closeAsked()
        }
    ]
}
