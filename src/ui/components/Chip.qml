import QtQuick
import Loomstreet.Theme

// A choice, a filter or a prompt. A removable one shows a cross, and pressing it anywhere removes it.
Pressable {
    id: control

    property bool selected: false
    property bool removable: false
    property string note
    property string iconName
    property bool compact: false // inside the composer

    readonly property color ink: selected ? Theme.accent : Theme.ink

    leftPadding: compact ? 10 : Theme.space1_5 + 1
    rightPadding: removable ? Theme.space1 + 1 : leftPadding
    spacing: Theme.space1
    accessibleName: removable ? qsTranslate("Loomstreet", "Remove %1").arg(text)
                              : note === "" ? text : text + ", " + note

    contentItem: Item {
        implicitWidth: words.implicitWidth + (control.removable ? control.spacing - 2 + cross.width : 0)
        implicitHeight: words.implicitHeight

        LabelRow {
            id: words

            anchors.verticalCenter: parent.verticalCenter
            anchors.left: parent.left
            width: Math.min(implicitWidth, parent.width - (control.removable ? control.spacing - 2 + cross.width : 0))
            text: control.text
            note: control.note
            iconName: control.iconName
            iconSize: 16
            type: Theme.type.label
            figures: true
            color: control.ink
            noteColor: control.selected ? Theme.accent : Theme.muted
        }
        Icon {
            id: cross

            objectName: "cross"
            anchors.verticalCenter: parent.verticalCenter
            anchors.right: parent.right
            visible: control.removable
            name: "xmark"
            size: 16
            color: control.ink
        }
    }
    background: Rectangle {
        implicitHeight: control.compact ? 28 : Theme.targetMinimum
        radius: height / 2
        color: control.down ? Theme.pressed
                            : control.selected ? Theme.accentTint : control.hovered ? Theme.hover : Theme.surface
        border.width: Theme.strokeControl
        border.color: control.selected ? Theme.accent : Theme.border

        FocusRing {
            target: control
            controlRadius: parent.radius
        }
    }

    Accessible.checkable: checkable
    Accessible.checked: selected
}
