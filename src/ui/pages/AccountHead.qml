import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Who is signed in, and the way out.
Item {
    id: head

    required property AuthStore auth
    property bool narrow: false

    signal signOutAsked()

    implicitHeight: Math.max(words.implicitHeight, out.height)

    Column {
        id: words

        anchors { left: parent.left; right: out.left; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }
        spacing: Theme.spaceHalf

        TextLabel {
            objectName: "name"
            width: parent.width
            text: head.auth.displayName !== "" ? head.auth.displayName : qsTranslate("Loomstreet", "Your account")
            type: head.narrow ? Theme.type.heading : Theme.type.title
            wrapMode: Text.Wrap
            maximumLineCount: 2
            Accessible.role: Accessible.Heading
        }
        TextLabel {
            objectName: "email"
            width: parent.width
            text: head.auth.email
            color: Theme.muted
        }
    }
    PushButton {
        id: out

        objectName: "signOut"
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        text: qsTranslate("Loomstreet", "Sign out")
        onClicked: head.signOutAsked()
    }
}
