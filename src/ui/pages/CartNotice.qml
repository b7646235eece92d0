import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A sentence about the cart, and perhaps what can be done about it.
Item {
    id: notice

    property string sentence
    property string actionText
    property string iconName: "info"
    property color tone: Theme.muted
    property bool busy: false
    property bool dismissable: false

    signal acted()
    signal dismissed()

    visible: sentence !== ""
    implicitHeight: visible ? Math.max(Theme.targetControl, words.implicitHeight + Theme.space1) : 0

    Accessible.role: Accessible.AlertMessage
    Accessible.name: sentence

    Icon {
        id: icon

        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        name: notice.iconName
        size: 16
        color: notice.tone
    }
    TextLabel {
        id: words

        objectName: "sentence"
        anchors { left: icon.right; leftMargin: Theme.space1; right: buttons.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
        text: notice.sentence
        type: Theme.type.small
        color: notice.tone
        wrapMode: Text.Wrap
        maximumLineCount: 5
        Accessible.ignored: true
    }
    Row {
        id: buttons

        anchors { right: parent.right; verticalCenter: parent.verticalCenter }

        PushButton {
            objectName: "act"
            visible: notice.actionText !== ""
            size: "small"
            text: notice.actionText
            busy: notice.busy
            onClicked: notice.acted()
        }
        IconButton {
            objectName: "dismiss"
            visible: notice.dismissable
            iconName: "xmark"
            iconSize: 16
            text: qsTranslate("Loomstreet", "Dismiss")
            onClicked: notice.dismissed()
        }
    }
}
