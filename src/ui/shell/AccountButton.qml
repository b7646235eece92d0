import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The way in for who is not signed in, and to the account for who is: it carries their initials then.
IconButton {
    id: button

    required property AuthStore auth

    readonly property string who: auth.displayName !== "" ? auth.displayName : auth.email
    readonly property string initials: {
        const words = auth.displayName.split(/\s+/).filter(word => word !== "")
        const first = words.length > 0 ? Array.from(words[0])[0] : ""
        const last = words.length > 1 ? Array.from(words[words.length - 1])[0] : ""
        return (first + last).toLocaleUpperCase()
    }
    readonly property bool lettered: auth.isSignedIn && initials !== ""

    iconName: lettered ? "" : "person.crop.circle"
    text: auth.isSignedIn ? qsTranslate("Loomstreet", "Your account: %1").arg(who) : qsTranslate("Loomstreet", "Sign in")

    Rectangle {
        anchors.centerIn: parent
        visible: button.lettered
        width: 28
        height: 28
        radius: 14
        color: button.down ? Theme.accentPressed : button.hovered ? Theme.accentHover : Theme.accent

        TextLabel {
            objectName: "initials"
            anchors.centerIn: parent
            text: button.initials
            type: Theme.type.badge
            color: Theme.accentInk
            Accessible.ignored: true
        }
    }
}
