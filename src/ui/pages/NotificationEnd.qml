import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// Below the last piece of news: more is on its way, could not be had, or needs the shopper to sign in.
Item {
    id: end

    property bool busy: false
    property bool guest: false
    property string sentence
    property int inset: Theme.space3

    signal retry()
    signal signInAsked()

    implicitHeight: body.height + 2 * Theme.space2

    Column {
        id: body

        x: end.inset
        y: Theme.space2
        width: end.width - 2 * end.inset
        spacing: Theme.space1

        Spinner {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: end.busy
        }
        TextLabel {
            width: parent.width
            visible: text !== ""
            text: end.busy ? "" : end.guest ? qsTranslate("Loomstreet", "Sign in to see what concerns your orders and your alerts.") : end.sentence
            type: Theme.type.small
            color: Theme.muted
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }
        PushButton {
            objectName: "endAction"
            anchors.horizontalCenter: parent.horizontalCenter
            visible: !end.busy && (end.guest || end.sentence !== "")
            size: "small"
            text: end.guest ? qsTranslate("Loomstreet", "Sign in") : qsTranslate("Loomstreet", "Try again")
            onClicked: end.guest ? end.signInAsked() : end.retry()
        }
    }
}
