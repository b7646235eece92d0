import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// While the shopper signs in at somebody else's page in their browser. Where the desktop does not bring them back, the
// link that the page ended with does.
Column {
    id: waiting

    required property SignInModel signIn

    readonly property string provider: signIn.providerName
    readonly property bool finishing: !signIn.isWaitingForProvider
    readonly property Item firstFocus: (finishing ? cancel : link) as Item

    spacing: Theme.space2

    onVisibleChanged: {
        link.clear()
        copied.stop()
    }

    TextLabel {
        objectName: "heading"
        anchors.left: parent.left
        width: parent.width - Theme.space2
        text: qsTranslate("Loomstreet", "Continue with %1").arg(waiting.provider)
        type: Theme.type.heading
        wrapMode: Text.Wrap
        Accessible.role: Accessible.Heading
    }
    Row {
        id: state

        width: parent.width
        spacing: Theme.space1_5

        Spinner {
            y: Math.round((words.type.line - height) / 2)
            color: Theme.accent
        }
        TextLabel {
            id: words

            objectName: "state"
            width: state.width - 16 - state.spacing
            text: waiting.finishing ? qsTranslate("Loomstreet", "Signing you in…")
                  : qsTranslate("Loomstreet", "%1 opens in your browser. Sign in there, and you are signed in here.").arg(waiting.provider)
            wrapMode: Text.Wrap
        }
    }
    Flow {
        width: parent.width
        spacing: Theme.space1

        PushButton {
            property real widest: 0 // of its words, so that nothing moves when they change

            objectName: "copyAddress"
            width: Math.max(implicitWidth, widest)
            visible: !waiting.finishing
            onImplicitWidthChanged: widest = Math.max(widest, implicitWidth)
            iconName: copied.running ? "checkmark" : "globe"
            text: copied.running ? qsTranslate("Loomstreet", "Copied") : qsTranslate("Loomstreet", "Copy address")
            Accessible.description: qsTranslate("Loomstreet", "For a browser that did not open by itself")
            onClicked: {
                address.text = waiting.signIn.providerAddress
                address.selectAll()
                address.copy()
                address.clear()
                copied.restart()
            }
        }
        PushButton {
            id: cancel

            objectName: "cancelProvider"
            text: qsTranslate("Loomstreet", "Cancel")
            onClicked: waiting.signIn.cancelProvider()
        }
    }
    Hairline {
        width: parent.width
        visible: !waiting.finishing
    }
    Column {
        width: parent.width
        visible: !waiting.finishing
        spacing: Theme.space1_5

        TextLabel {
            width: parent.width
            text: qsTranslate("Loomstreet", "Nothing happened here?")
            type: Theme.type.bodyStrong
        }
        FieldInput {
            id: link

            objectName: "callback"
            width: parent.width
            label: qsTranslate("Loomstreet", "Paste the link your browser ended with")
            message: qsTranslate("Loomstreet", "It begins with “wrenfieldstore://”. Some browsers show it in the address bar.")
            error: waiting.signIn.pasteError
            maximumLength: 8192
            inputMethodHints: Qt.ImhUrlCharactersOnly | Qt.ImhNoPredictiveText | Qt.ImhSensitiveData
            onEdited: waiting.signIn.forgetPasteError()
            onAccepted: if (text.trim() !== "") waiting.signIn.pasteCallback(text)
        }
        PushButton {
            objectName: "finish"
            anchors.left: parent.left
            kind: "primary"
            enabled: link.text.trim() !== ""
            text: qsTranslate("Loomstreet", "Finish signing in")
            onClicked: waiting.signIn.pasteCallback(link.text)
        }
    }
    // The way to the clipboard.
    TextEdit {
        id: address

        visible: false
    }
    Timer {
        id: copied

        interval: 3000
    }
}
