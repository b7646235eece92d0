pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The three ways to sign in at the store itself, and the ways through others.
Column {
    id: form

    required property SignInModel signIn
    required property AuthStore auth
    // The shopper is at this form, of all that show the same.
    property bool inUse: false

    readonly property bool creating: signIn.mode === "create"
    readonly property bool withPassword: signIn.mode === "password"
    readonly property bool asksForCode: !withPassword && signIn.isCodeSent
    readonly property bool asksForPassword: withPassword || (creating && signIn.isCodeSent)
    readonly property string heading: creating ? qsTranslate("Loomstreet", "Create your account")
                                               : qsTranslate("Loomstreet", "Sign in to your account")
    readonly property Item wrong: (signIn.emailError !== "" ? email.textInput : signIn.codeError !== "" ? code.textInput
                                : signIn.passwordError !== "" ? password.textInput : null) as Item
    // Where the keyboard begins.
    readonly property Item firstEmpty: (wrong !== null ? wrong
                                     : signIn.email === "" ? email.textInput
                                     : asksForCode && signIn.code.length < code.length ? code.textInput
                                     : asksForPassword && signIn.password === "" ? password.textInput
                                     : asksForCode || asksForPassword ? button : email.textInput) as Item

    function goOn(): void {
        if (inUse)
            firstEmpty.forceActiveFocus(Qt.OtherFocusReason)
    }
    function goToWhatIsWrong(): void {
        if (!inUse || wrong === null)
            return
        wrong.forceActiveFocus(Qt.OtherFocusReason)
        if (wrong === code.textInput)
            code.selectAll() // to be typed anew
    }

    spacing: Theme.space2

    // What is gone on to has to be there first.
    Timer {
        id: later

        interval: 0
        onTriggered: form.goOn()
    }
    Connections {
        target: form.signIn
        function onCodeSentChanged(): void {
            if (form.signIn.isCodeSent)
                later.restart()
        }
        function onModeChanged(): void {
            // Who walks along the tabs by the arrows stays there.
            if (!(tabs.activeFocus && InputMode.keyboard))
                later.restart()
        }
        function onRefused(): void { form.goToWhatIsWrong() }
    }

    TextLabel {
        objectName: "heading"
        anchors.left: parent.left
        width: parent.width - Theme.space2
        text: form.heading
        type: Theme.type.heading
        wrapMode: Text.Wrap
        Accessible.role: Accessible.Heading
    }
    Tabs {
        id: tabs

        readonly property var modes: ["code", "password", "create"]

        objectName: "modes"
        width: parent.width
        enabled: !form.signIn.isBusy
        name: qsTranslate("Loomstreet", "Ways to sign in")
        titles: [qsTranslate("Loomstreet", "Email code"), qsTranslate("Loomstreet", "Password"), qsTranslate("Loomstreet", "Create account")]
        currentIndex: modes.indexOf(form.signIn.mode)
        onActivated: index => { form.signIn.mode = modes[index] }
    }
    FieldInput {
        id: email

        objectName: "email"
        width: parent.width
        label: qsTranslate("Loomstreet", "Email")
        text: form.signIn.email
        readOnly: form.signIn.isBusy
        maximumLength: 1000
        inputMethodHints: Qt.ImhEmailCharactersOnly | Qt.ImhNoAutoUppercase | Qt.ImhNoPredictiveText
        confirmed: form.asksForCode
        error: form.signIn.emailError
        message: form.asksForCode
                 ? qsTranslate("Loomstreet", "We sent a code to %1. It can take a minute to arrive.")
                       .arg(LayoutMirroring.enabled ? Bidi.isolate(form.signIn.codeSentTo) : form.signIn.codeSentTo)
                 : form.withPassword ? ""
                 : form.creating ? qsTranslate("Loomstreet", "We email you a code first, to be sure that the address is yours.")
                                 : qsTranslate("Loomstreet", "We email you a code to sign in with. You need no password.")
        onEdited: text => { form.signIn.email = text }
        onAccepted: form.signIn.submit()
    }
    CodeField {
        id: code

        objectName: "code"
        width: parent.width
        visible: form.asksForCode
        label: qsTranslate("Loomstreet", "Verification code")
        code: form.signIn.code
        readOnly: form.signIn.isBusy
        error: form.signIn.codeError
        onEdited: text => { form.signIn.code = text }
        onAccepted: form.signIn.submit()

        TextLabel {
            objectName: "resendIn"
            visible: !resend.visible
            text: form.signIn.isSendingCode ? qsTranslate("Loomstreet", "Sending…")
                                            : qsTranslate("Loomstreet", "Send again in %L1 s").arg(form.signIn.secondsToResend)
            type: Theme.type.caption
            figures: true
            color: Theme.muted
        }
        LinkButton {
            id: resend

            objectName: "resend"
            visible: form.signIn.secondsToResend === 0 && !form.signIn.isSendingCode
            enabled: !form.signIn.isBusy
            type: Theme.type.caption
            text: qsTranslate("Loomstreet", "Send again")
            accessibleName: qsTranslate("Loomstreet", "Send the code again")
            onClicked: form.signIn.resend()
        }
    }
    PasswordField {
        id: password

        objectName: "password"
        width: parent.width
        visible: form.asksForPassword
        label: qsTranslate("Loomstreet", "Password (6 or more characters)")
        text: form.signIn.password
        readOnly: form.signIn.isBusy
        error: form.signIn.passwordError
        onEdited: text => { form.signIn.password = text }
        onAccepted: form.signIn.submit()
    }
    FieldInput {
        objectName: "name"
        width: parent.width
        visible: form.creating && form.signIn.isCodeSent
        label: qsTranslate("Loomstreet", "Name (optional)")
        text: form.signIn.name
        readOnly: form.signIn.isBusy
        maximumLength: 100
        onEdited: text => { form.signIn.name = text }
        onAccepted: form.signIn.submit()
    }
    LinkButton {
        objectName: "forgot"
        anchors.left: parent.left
        width: Math.min(implicitWidth, parent.width)
        visible: form.withPassword
        enabled: !form.signIn.isBusy
        type: Theme.type.caption
        text: qsTranslate("Loomstreet", "Forgot password? Sign in with an email code instead")
        onClicked: form.signIn.mode = "code"
    }
    SignInProblem {
        width: parent.width
        text: form.signIn.generalError
    }
    PushButton {
        id: button

        objectName: "submit"
        width: parent.width
        kind: "primary"
        size: "primary"
        // Until it is known who is signed in, nobody else can be.
        busy: form.signIn.isBusy || form.auth.phase === AuthStore.Unknown
        text: !form.withPassword && !form.signIn.isCodeSent ? qsTranslate("Loomstreet", "Email me a code")
              : form.creating ? qsTranslate("Loomstreet", "Create account") : qsTranslate("Loomstreet", "Sign in")
        onClicked: form.signIn.submit()
    }
    Item {
        width: parent.width
        height: or.implicitHeight + Theme.spaceHalf

        Hairline {
            anchors { left: parent.left; right: or.left; rightMargin: Theme.space1_5; verticalCenter: or.verticalCenter }
        }
        TextLabel {
            id: or

            anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom }
            text: qsTranslate("Loomstreet", "or continue with")
            type: Theme.type.caption
            color: Theme.muted
        }
        Hairline {
            anchors { left: or.right; right: parent.right; leftMargin: Theme.space1_5; verticalCenter: or.verticalCenter }
        }
    }
    Row {
        id: providers

        anchors { left: parent.left; right: parent.right }
        spacing: Theme.space1

        Repeater {
            // Names, which are the same in every language.
            model: [{ id: "apple", name: "Apple" }, { id: "google", name: "Google" }, { id: "facebook", name: "Facebook" }]

            PushButton {
                required property var modelData

                objectName: "provider." + modelData.id
                width: (providers.width - 2 * providers.spacing) / 3
                enabled: form.auth.phase !== AuthStore.Unknown
                text: modelData.name
                accessibleName: qsTranslate("Loomstreet", "Continue with %1").arg(modelData.name)
                onClicked: form.signIn.signInWith(modelData.id)
            }
        }
    }
}
