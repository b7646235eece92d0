import QtQuick
import QtQuick.Templates as T
import Loomstreet.Components

// Has the tooltip shown for a control while it is under the pointer or holds the keyboard.
QtObject {
    id: wish

    required property T.AbstractButton control
    property string text
    property string shortcut

    readonly property bool wanted: text !== "" && (control.hovered || (control.activeFocus && InputMode.keyboard))
    onWantedChanged: wanted ? ToolTips.show(control, text, shortcut) : ToolTips.hide(control)

    Component.onDestruction: if (wanted) ToolTips.hide(control)
}
