import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Signing in, over whatever the shopper was doing. What was typed outlives the sheet.
Sheet {
    id: sheet

    required property AppModel app
    property bool narrow: false

    readonly property SignInModel signIn: app.signIn
    readonly property AuthStore auth: app.auth
    // The keyring does not answer, the browser is waited for, or neither.
    readonly property string stage: auth.isStuck ? "stuck" : signIn.isProviderRunning ? "provider" : "form"
    readonly property Item shown: stage === "stuck" ? stuck : stage === "provider" ? provider : form

    function takeFocus(): void {
        if (open)
            firstFocus.forceActiveFocus(Qt.PopupFocusReason)
    }

    objectName: "signInSheet"
    name: form.heading
    extent: Qt.size(narrow ? 480 : Theme.layoutSignInSheet.width,
                    Math.max(narrow ? 480 : Theme.layoutSignInSheet.height, shown.implicitHeight + 2 * words.margin))
    firstFocus: (stage === "stuck" ? retry : stage === "provider" ? provider.firstFocus : form.firstEmpty) as Item

    onStageChanged: later.restart()

    // What takes the focus has to be there first.
    Timer {
        id: later

        interval: 0
        onTriggered: sheet.takeFocus()
    }
    Connections {
        target: sheet.auth
        function onSessionChanged(): void {
            if (sheet.open && sheet.auth.isSignedIn)
                sheet.closeAsked()
        }
    }
    WelcomePicture {
        id: picture

        radius: Theme.radiusPanel
        square: true
        mostHeight: Theme.layoutSignInSheet.height

        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
        width: sheet.narrow ? 0 : Theme.layoutSignInSheet.width * 2 / 5
        visible: !sheet.narrow
    }
    Flickable {
        id: words

        readonly property int margin: Theme.space6

        anchors { left: picture.right; right: parent.right; top: parent.top; bottom: parent.bottom }
        contentHeight: sheet.shown.implicitHeight + 2 * margin
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive
        ScrollBar.vertical: ScrollBar {}

        FocusFollower { flickable: words }

        SignInForm {
            id: form

            x: Theme.space5
            y: words.margin
            width: words.width - 2 * Theme.space5
            visible: sheet.shown === this
            signIn: sheet.signIn
            auth: sheet.auth
            inUse: sheet.open && sheet.activeFocus
        }
        SignInAtProvider {
            id: provider

            x: Theme.space5
            y: words.margin
            width: words.width - 2 * Theme.space5
            visible: sheet.shown === this
            signIn: sheet.signIn
        }
        EmptyState {
            id: stuck

            objectName: "stuck"
            width: words.width
            height: Math.max(implicitHeight, words.height)
            visible: sheet.shown === this
            iconName: "lock"
            backdrop: Theme.surface
            title: qsTranslate("Loomstreet", "Your keyring does not answer")
            sentence: qsTranslate("Loomstreet", "It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.")

            PushButton {
                id: retry

                objectName: "retry"
                kind: "primary"
                text: qsTranslate("Loomstreet", "Try again")
                onClicked: sheet.auth.load()
            }
        }
    }
}
