import QtQuick
import Loomstreet.Theme

// Above whatever is already shown, for as long as there is no network.
Rectangle {
    id: strip

    property string text: qsTranslate("Loomstreet",
                                      "You appear to be offline. Check your connection and try again.")

    implicitWidth: 320
    implicitHeight: Math.max(Theme.targetControl, label.implicitHeight + 2 * Theme.space1)
    color: Theme.warningTint

    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    Icon {
        id: icon

        anchors { left: parent.left; leftMargin: Theme.space2; verticalCenter: parent.verticalCenter }
        name: "wifi.slash"
        color: Theme.warning
    }
    TextLabel {
        id: label

        objectName: "label"
        anchors { left: icon.right; right: parent.right; verticalCenter: parent.verticalCenter }
        anchors.leftMargin: Theme.space1_5
        anchors.rightMargin: Theme.space2
        text: strip.text
        type: Theme.type.small
        color: Theme.warning
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
