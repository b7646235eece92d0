import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Pages
import Loomstreet.Theme

// Who is signed in, and the ways in and out.
SettingsPage {
    id: page

    required property AppModel app

    readonly property AuthStore auth: app.auth
    readonly property bool known: auth.phase !== AuthStore.Unknown

    readonly property bool asking: questions.asking

    signal signInAsked()

    title: qsTranslate("Loomstreet", "Account")
    onVisibleChanged: if (!visible) questions.withdraw()

    AccountQuestions {
        id: questions

        app: page.app
    }
    FactRow {
        objectName: "who"
        width: page.width
        divided: false
        iconName: page.auth.isStuck ? "lock" : "person.crop.circle"
        title: page.auth.isStuck ? qsTranslate("Loomstreet", "Your keyring does not answer")
               : !page.known ? qsTranslate("Loomstreet", "Looking for your account…")
               : !page.auth.isSignedIn ? qsTranslate("Loomstreet", "Nobody is signed in")
               : page.auth.displayName !== "" ? page.auth.displayName : page.auth.email
        note: page.auth.isStuck ? qsTranslate("Loomstreet", "It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.")
              : !page.known ? ""
              : !page.auth.isSignedIn ? qsTranslate("Loomstreet", "Orders, alerts and membership need an account. Browsing and buying do not.")
              : page.auth.displayName !== "" ? page.auth.email : ""
    }
    TextLabel {
        objectName: "outcome"
        width: page.width
        visible: text !== ""
        text: questions.outcome
        wrapMode: Text.Wrap
        Accessible.role: Accessible.AlertMessage
    }
    Flow {
        width: page.width
        spacing: Theme.space1

        PushButton {
            objectName: "retry"
            visible: page.auth.isStuck
            text: qsTranslate("Loomstreet", "Try again")
            onClicked: page.auth.load()
        }
        PushButton {
            objectName: "signIn"
            visible: page.known && !page.auth.isSignedIn
            kind: "primary"
            text: qsTranslate("Loomstreet", "Sign in")
            onClicked: page.signInAsked()
        }
        PushButton {
            objectName: "createAccount"
            visible: page.known && !page.auth.isSignedIn
            text: qsTranslate("Loomstreet", "Create account")
            onClicked: {
                page.app.signIn.mode = "create"
                page.signInAsked()
            }
        }
        PushButton {
            objectName: "signOut"
            visible: page.auth.isSignedIn
            text: qsTranslate("Loomstreet", "Sign out")
            onClicked: questions.askToSignOut()
        }
    }
    LinkButton {
        objectName: "deleteAccount"
        anchors.left: parent.left
        visible: page.auth.isSignedIn
        color: Theme.danger
        text: qsTranslate("Loomstreet", "Delete account…")
        onClicked: questions.askToDelete()
    }
}
