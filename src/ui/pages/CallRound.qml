import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A round button of a call, with its word below it where there is room.
Pressable {
    id: control

    property string iconName
    property int extent: 56
    property string kind: "plain" // or "danger"
    property bool on: false
    property bool worded: false
    property string shortcut
    property bool showsToolTip: true
    property int mostWords: 104 * Theme.textScale // more take a line more

    readonly property bool dangerous: kind === "danger"
    readonly property color fill: {
        if (dangerous)
            return down ? Qt.darker(Theme.danger, 1.2) : hovered ? Qt.darker(Theme.danger, 1.1) : Theme.danger
        if (on)
            return down ? Theme.primaryPressed : hovered ? Theme.primaryHover : Theme.primary
        return down ? Theme.pressed : hovered ? Theme.hover : Theme.sunken
    }

    implicitWidth: worded ? Math.max(72, extent, Math.min(words.implicitWidth, mostWords)) : extent
    implicitHeight: worded ? extent + Theme.space1 + words.height : extent

    background: Item {
        Rectangle {
            id: disc

            anchors { top: parent.top; horizontalCenter: parent.horizontalCenter }
            width: control.extent
            height: width
            radius: width / 2
            color: control.fill

            FocusRing {
                target: control
                controlRadius: parent.radius
            }
            Icon {
                objectName: "icon"
                anchors.centerIn: parent
                name: control.iconName
                size: control.extent >= 48 ? 24 : 18
                color: control.dangerous || control.on ? Theme.primaryInk : Theme.ink
            }
        }
        TextLabel {
            id: words

            anchors { top: disc.bottom; topMargin: Theme.space1; horizontalCenter: parent.horizontalCenter }
            width: Math.min(implicitWidth, Math.max(parent.width, control.extent))
            visible: control.worded
            text: control.text
            type: Theme.type.caption
            color: Theme.muted
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            Accessible.ignored: true
        }
    }

    Accessible.checkable: checkable
    Accessible.checked: on

    HoverToolTip {
        control: control
        text: control.showsToolTip && (!control.worded || control.shortcut !== "") ? control.text : ""
        shortcut: control.shortcut
    }
}
