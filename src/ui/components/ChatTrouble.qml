import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// Below the end of a message that may not have arrived: why, and what can be done about it. As wide as it needs.
Column {
    id: trouble

    property string text

    signal retryAsked()
    signal removeAsked()

    Row {
        anchors.right: parent.right
        spacing: 6

        Icon {
            y: Math.round((reason.type.line - height) / 2)
            name: "warning"
            size: 16
            color: Theme.danger
        }
        TextLabel {
            id: reason

            objectName: "problem"
            width: Math.min(implicitWidth, trouble.width - 22)
            text: trouble.text
            type: Theme.type.caption
            color: Theme.danger
            wrapMode: Text.Wrap
            Accessible.role: Accessible.AlertMessage
        }
    }
    Row {
        anchors.right: parent.right
        spacing: Theme.space2

        LinkButton {
            objectName: "retry"
            text: qsTranslate("Loomstreet", "Try again")
            onClicked: trouble.retryAsked()
        }
        LinkButton {
            objectName: "remove"
            text: qsTranslate("Loomstreet", "Remove")
            onClicked: trouble.removeAsked()
        }
    }
}
