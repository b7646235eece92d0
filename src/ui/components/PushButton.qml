import QtQuick
import Loomstreet.Theme

// A button with words. One primary per view. While busy it keeps its width and its focus and ignores presses.
Pressable {
    id: control

    property string kind: "secondary" // or "primary", "quiet", "danger"
    property string size: "regular" // or "primary", "small"
    property string iconName
    property bool busy: false
    // Where what it opens is already open, as with the stylist.
    property bool on: false

    readonly property bool dangerous: kind === "danger"
    readonly property bool filled: kind === "primary" || dangerous
    readonly property color ink: filled ? Theme.primaryInk : on ? Theme.accent : Theme.ink
    readonly property color fill: {
        if (dangerous)
            return down ? Qt.darker(Theme.danger, 1.2) : hovered && !busy ? Qt.darker(Theme.danger, 1.1) : Theme.danger
        if (filled)
            return down ? Theme.primaryPressed : hovered && !busy ? Theme.primaryHover : Theme.primary
        if (down)
            return Theme.pressed
        if (hovered && !busy)
            return Theme.hover
        return on ? Theme.accentTint : Qt.alpha(Theme.hover, 0)
    }

    locked: busy
    horizontalPadding: size === "primary" ? Theme.space3 : size === "small" ? Theme.space1_5 : Theme.space2
    verticalPadding: Theme.spaceHalf

    contentItem: LabelRow {
        text: control.text
        iconName: control.iconName
        iconSize: control.size === "small" ? 16 : 20
        lines: 2
        busy: control.busy
        color: control.ink
        type: control.size === "small" ? Theme.type.label : Theme.type.control
    }
    background: Rectangle {
        implicitHeight: control.size === "primary" ? Theme.targetPrimary
                      : control.size === "small" ? Theme.targetMinimum : Theme.targetControl
        radius: Theme.radiusControl
        color: control.fill
        border.width: control.kind === "secondary" ? Theme.strokeControl : 0
        border.color: control.on ? Theme.accent : Theme.border

        Behavior on color { ColorAnimation { duration: Theme.durationHover } }

        FocusRing { target: control }
    }

    Accessible.description: busy ? qsTranslate("Loomstreet", "Busy") : ""
}
