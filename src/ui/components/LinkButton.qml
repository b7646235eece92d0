import QtQuick
import Loomstreet.Theme

// Underlined words that lead somewhere. As tall as a target has to be, wherever the line stands.
Pressable {
    id: control

    property TypeStyle type: Theme.type.label
    property color color: Theme.ink

    implicitHeight: Math.max(Theme.targetMinimum, implicitContentHeight)

    contentItem: Item {
        implicitWidth: label.implicitWidth
        implicitHeight: label.implicitHeight + 3

        TextLabel {
            id: label

            objectName: "label"
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, parent.width)
            text: control.text
            type: control.type
            color: control.color
            wrapMode: Text.Wrap
            font.underline: lineCount > 1
            Accessible.ignored: true
        }
        Rectangle {
            visible: label.lineCount === 1
            anchors.top: label.bottom
            anchors.left: label.left
            width: label.width
            height: Theme.strokeHairline
            color: control.hovered || control.down ? control.color : Theme.border
        }
    }
    background: Item {
        // The ring goes around the words, not around the taller target.
        Item {
            anchors.fill: parent
            anchors.topMargin: Math.max(0, (parent.height - label.height) / 2 - 2)
            anchors.bottomMargin: anchors.topMargin

            FocusRing {
                target: control
                controlRadius: 0
            }
        }
    }

    HoverHandler { cursorShape: Qt.PointingHandCursor }
}
