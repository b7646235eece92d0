import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// In the corner of a picture, below the heart: takes the piece out of its list.
Pressable {
    id: control

    objectName: "remove"
    activeFocusOnTab: false // the card itself takes the Delete key
    text: qsTranslate("Loomstreet", "Remove from the list")

    contentItem: Item {
        Icon {
            anchors.centerIn: parent
            name: "xmark"
            size: 16
        }
    }
    background: Rectangle {
        implicitWidth: Theme.targetIcon
        implicitHeight: Theme.targetIcon
        radius: height / 2
        color: control.down ? Theme.pressed : control.hovered ? Theme.hover : Qt.alpha(Theme.surface, 0.92)

        FocusRing {
            target: control
            controlRadius: parent.radius
            overPicture: true
        }
    }
    HoverToolTip {
        control: control
        text: control.text
    }
}
