import QtQuick
import Loomstreet.Theme

// A count in the corner of an icon. Nothing for none, "99+" for many.
Rectangle {
    id: badge

    property int count: 0

    implicitWidth: Math.max(implicitHeight, label.implicitWidth + 8)
    implicitHeight: Math.max(16, label.implicitHeight)
    visible: count > 0
    radius: height / 2
    color: Theme.accent

    TextLabel {
        id: label

        objectName: "count"
        anchors.centerIn: parent
        text: badge.count > 99 ? "99+" : badge.count
        type: Theme.type.badge
        figures: true
        color: Theme.accentInk
        Accessible.ignored: true
    }
}
