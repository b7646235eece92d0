import QtQuick
import Loomstreet.Theme

// Above whatever is already shown, for as long as what is newer could not be had.
Rectangle {
    id: strip

    property string text: qsTranslate("Loomstreet",
                                      "You appear to be offline. Check your connection and try again.")

    property bool offline: true
    property bool canRetry: false

    signal retry()

    implicitWidth: 320
    implicitHeight: Math.max(Theme.targetControl, label.implicitHeight + 2 * Theme.space1)
    color: Theme.warningTint

    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    Icon {
        id: icon

        anchors { left: parent.left; leftMargin: Theme.space2; verticalCenter: parent.verticalCenter }
        name: strip.offline ? "wifi.slash" : "warning"
        color: Theme.warning
    }
    TextLabel {
        id: label

        objectName: "label"
        anchors { left: icon.right; right: again.visible ? again.left : parent.right; verticalCenter: parent.verticalCenter }
        anchors.leftMargin: Theme.space1_5
        anchors.rightMargin: Theme.space2
        text: strip.text
        type: Theme.type.small
        color: Theme.warning
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
    LinkButton {
        id: again

        objectName: "retry"
        anchors { right: parent.right; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }
        visible: strip.canRetry
        color: Theme.warning
        text: qsTranslate("Loomstreet", "Try again")
        onClicked: strip.retry()
    }
}
