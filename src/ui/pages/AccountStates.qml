import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// In the place of what is kept for an account, as long as there is nothing of it to show: its shape, why it could not
// be had, or the way to sign in.
FocusScope {
    id: states

    property AccountContent content
    property WindowSession session
    property bool shown: false // the page is
    property string iconName
    property string signInTitle
    property string signInSentence
    property string guestActionText // what a guest can do as well
    default property alias skeleton: skeleton.data

    readonly property int phase: content ? content.phase : AccountContent.Waiting

    signal guestActionAsked()

    visible: phase !== AccountContent.Ready

    Item {
        id: skeleton

        anchors.fill: parent
        visible: states.phase === AccountContent.Waiting && late.elapsed
    }
    // What comes at once needs no stand-in.
    Timer {
        id: late

        property bool elapsed: false

        interval: 150
        running: states.phase === AccountContent.Waiting && !elapsed
        onTriggered: elapsed = true
    }
    onPhaseChanged: if (phase !== AccountContent.Waiting) late.elapsed = false

    EmptyState {
        objectName: "needsAccount"
        anchors.centerIn: parent
        visible: states.phase === AccountContent.NeedsAccount
        width: Math.min(parent.width, 480)
        iconName: states.iconName
        title: states.signInTitle
        sentence: states.signInSentence

        PushButton {
            objectName: "signIn"
            focus: true
            kind: "primary"
            text: qsTranslate("Loomstreet", "Sign in")
            onClicked: states.session.isSignInPresented = true
        }
        PushButton {
            objectName: "guestAction"
            visible: text !== ""
            text: states.guestActionText
            onClicked: states.guestActionAsked()
        }
    }
    ErrorState {
        objectName: "error"
        anchors.centerIn: parent
        visible: states.phase === AccountContent.Failed
        width: Math.min(parent.width, 480)
        sentence: states.content?.errorText ?? ""
        busy: states.content?.isLoading ?? false
        takesFocus: states.shown
        onRetry: states.content.reload()
    }
}
