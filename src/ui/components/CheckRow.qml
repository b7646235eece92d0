import QtQuick
import Loomstreet.Theme

// One of several that may be chosen together, with a note at its end. `selected` says whether it is chosen; a press
// only asks for it.
Pressable {
    id: control

    property bool selected: false
    property string note

    horizontalPadding: Theme.spaceHalf
    accessibleName: note === "" ? text : text + ", " + note

    contentItem: Item {
        implicitWidth: box.width + Theme.space1_5 + label.implicitWidth + Theme.space1 + noteLabel.implicitWidth
        implicitHeight: label.implicitHeight

        Rectangle {
            id: box

            objectName: "box"
            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            width: 18
            height: 18
            radius: Theme.radiusSmall
            color: control.selected ? Theme.accent : control.hovered ? Theme.hover : "transparent"
            border.width: control.selected ? 0 : 1.5
            border.color: Theme.border

            Icon {
                anchors.centerIn: parent
                visible: control.selected
                name: "checkmark"
                size: 14
                color: Theme.accentInk
            }
        }
        TextLabel {
            id: label

            anchors { left: box.right; right: noteLabel.left; verticalCenter: parent.verticalCenter }
            anchors.leftMargin: Theme.space1_5
            anchors.rightMargin: Theme.space1
            text: control.text
            type: Theme.type.label
            Accessible.ignored: true
        }
        TextLabel {
            id: noteLabel

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            text: control.note
            type: Theme.type.small
            figures: true
            color: Theme.muted
            Accessible.ignored: true
        }
    }
    background: Rectangle {
        implicitHeight: Theme.targetMinimum
        radius: Theme.radiusControl
        color: control.down ? Theme.pressed : control.hovered ? Theme.hover : "transparent"

        FocusRing { target: control }
    }

    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: selected
    Accessible.onToggleAction: control.press()
}
