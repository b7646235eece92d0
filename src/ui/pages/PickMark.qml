import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// In the corner of a card while pieces are chosen: whether this one is.
Rectangle {
    id: mark

    property bool picked: false

    width: Theme.targetIcon
    height: Theme.targetIcon
    radius: height / 2
    color: picked ? Theme.accent : Qt.alpha(Theme.surface, 0.92)
    border { width: picked ? 0 : Theme.strokeControl; color: Theme.border }

    Icon {
        anchors.centerIn: parent
        visible: mark.picked
        name: "checkmark"
        size: 16
        color: Theme.accentInk
    }
}
