import QtQuick
import Loomstreet.Theme

// A button with an icon alone. Its words are its name and its tooltip.
Pressable {
    id: control

    property string iconName
    property int iconSize: 20
    // What it opens is open, or what it switches is on.
    property bool on: false
    property int badge: 0
    property string shortcut
    property string kind: "plain" // or "outlined", "accent"
    property int extent: Theme.targetIcon
    property real radius: Theme.radiusControl
    property color color: Theme.ink
    property bool showsToolTip: true

    readonly property color fill: {
        if (kind === "accent")
            return down ? Theme.accentPressed : hovered ? Theme.accentHover : Theme.accent
        if (down)
            return Theme.pressed
        if (on)
            return Theme.accentTint
        return hovered ? Theme.hover : Qt.alpha(Theme.hover, 0)
    }

    contentItem: Item {
        Icon {
            objectName: "icon"
            anchors.centerIn: parent
            name: control.iconName
            size: control.iconSize
            color: control.kind === "accent" ? Theme.accentInk : control.on ? Theme.accent : control.color
        }
        // Around the corner of the icon, so that it covers as little of it as it can.
        Badge {
            objectName: "badge"
            anchors.left: parent.horizontalCenter
            anchors.leftMargin: 1
            anchors.bottom: parent.verticalCenter
            anchors.bottomMargin: -1
            count: control.badge
        }
    }
    background: Rectangle {
        implicitWidth: control.extent
        implicitHeight: control.extent
        radius: control.radius
        color: control.fill
        border.width: control.kind === "outlined" ? Theme.strokeControl : 0
        border.color: control.on ? Theme.accent : Theme.border

        FocusRing {
            target: control
            controlRadius: control.radius
        }
    }

    Accessible.checkable: checkable
    Accessible.checked: checked || on
    Accessible.description: badge > 0 ? badge : ""

    HoverToolTip {
        control: control
        text: control.showsToolTip ? control.text : ""
        shortcut: control.shortcut
    }
}
