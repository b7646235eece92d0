import QtQuick
import Loomstreet.Theme

// A key or a chord, drawn as a small cap.
Rectangle {
    property alias text: label.text

    implicitWidth: label.implicitWidth + 12
    implicitHeight: label.implicitHeight + 4
    radius: Theme.radiusSmall
    color: Theme.surface
    border.width: Theme.strokeHairline
    border.color: Theme.hairline

    TextLabel {
        id: label

        anchors.centerIn: parent
        type: Theme.type.caption
        color: Theme.muted
        Accessible.ignored: true
    }
}
