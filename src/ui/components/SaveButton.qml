import QtQuick
import Loomstreet.Theme

// The heart in the corner of a picture.
Pressable {
    id: control

    property bool saved: false

    text: saved ? qsTranslate("Loomstreet", "Remove from wishlist") : qsTranslate("Loomstreet", "Save to wishlist")

    contentItem: Item {
        enabled: false

        Icon {
            objectName: "icon"
            anchors.centerIn: parent
            name: control.saved ? "heart.fill" : "heart"
            color: control.saved ? Theme.accent : Theme.ink
        }
    }
    background: Rectangle {
        implicitWidth: Theme.targetIcon
        implicitHeight: Theme.targetIcon
        radius: height / 2
        color: control.down ? Theme.pressed
                            : control.hovered ? Theme.hover : Qt.alpha(Theme.surface, 0.92)

        FocusRing {
            target: control
            controlRadius: parent.radius
            overPicture: true
        }
    }

    Accessible.checkable: true
    Accessible.checked: saved
}
