import QtQuick
import Loomstreet.Theme

// One colourway of a piece: a small picture of it, or the colour itself.
Choice {
    id: control

    property alias label: control.text
    property string picture
    property color color: "transparent"
    property bool soldOut: false
    property color backdrop: Theme.paper

    accessibleName: soldOut ? qsTranslate("Loomstreet", "%1, sold out").arg(text) : text

    contentItem: Item {
        implicitWidth: 36
        implicitHeight: 48

        Picture {
            anchors.fill: parent
            visible: control.picture !== ""
            address: control.picture
            backdrop: control.backdrop
            soldOut: control.soldOut
        }
        Rectangle {
            anchors.fill: parent
            visible: control.picture === ""
            radius: Theme.radiusPicture
            color: control.color
            opacity: control.soldOut ? Theme.alphaPictureSoldOut : 1
            border.width: Theme.strokeHairline
            border.color: Qt.alpha(Theme.ink, 0.2)
        }
        // Through a sold-out colour, as through the name of a sold-out size.
        Rectangle {
            anchors.centerIn: parent
            visible: control.soldOut
            width: Math.hypot(parent.width, parent.height) - 8
            height: Theme.strokeHairline
            rotation: -53
            color: Theme.muted
            antialiasing: true
        }
    }
    background: Item {
        SelectionOutline {
            objectName: "selection"
            visible: control.selected
        }
        FocusRing {
            target: control
            controlRadius: Theme.radiusPicture
            clearance: control.selected ? 2 * Theme.strokeSelected : 0
        }
    }

    HoverToolTip {
        control: control
        text: control.accessibleName
    }
}
