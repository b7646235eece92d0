import QtQuick
import Loomstreet.Theme

// A word on a picture, on solid ground.
Rectangle {
    property alias text: label.text

    implicitWidth: label.implicitWidth + 2 * Theme.space1
    implicitHeight: Math.max(20, label.implicitHeight + 4)
    radius: Theme.radiusSmall
    color: Theme.surface
    visible: text !== ""

    TextLabel {
        id: label

        objectName: "label"
        anchors.centerIn: parent
        width: Math.min(implicitWidth, parent.width - 2 * Theme.space1)
        type: Theme.type.badge
    }
}
