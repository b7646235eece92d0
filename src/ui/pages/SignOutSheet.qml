import QtQuick
import Loomstreet.Components
import Loomstreet.Model

// Before the shopper signs out: what stays and what goes.
QuestionSheet {
    id: sheet

    required property AuthStore auth

    objectName: "signOutSheet"
    title: qsTranslate("Loomstreet", "Sign out?")
    sentence: qsTranslate("Loomstreet", "Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.")
    firstFocus: yes

    answers: [
        PushButton {
            id: yes

            objectName: "confirmSignOut"
            kind: "primary"
            text: qsTranslate("Loomstreet", "Sign out")
            onClicked: {
                sheet.closeAsked()
                sheet.auth.signOut()
            }
        },
        PushButton {
            objectName: "cancel"
            text: qsTranslate("Loomstreet", "Cancel")
            onClicked: sheet.closeAsked()
        }
    ]
}
