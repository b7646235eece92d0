import QtQuick
import QtQuick.Templates as T
import Loomstreet.Theme

// What everything that can be pressed shares: space, Enter and assistive tools press it as a click does, and what is
// disabled fades. It has no look of its own.
T.AbstractButton {
    id: control

    // What assistive tools call it, where the text on it does not say enough.
    property string accessibleName: text
    // Keeps its focus and takes no press, as while what it started is under way.
    property bool locked: false

    // What a click does, for those that have no pointer.
    function press(): void {
        if (!enabled || locked)
            return
        if (checkable) {
            toggle()
            toggled()
        }
        if (action)
            action.trigger(control)
        else
            clicked()
    }

    implicitWidth: Math.max(implicitBackgroundWidth + leftInset + rightInset,
                            implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(implicitBackgroundHeight + topInset + bottomInset,
                             implicitContentHeight + topPadding + bottomPadding)
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.alphaDisabled

    Keys.onSpacePressed: event => { event.accepted = locked }
    Keys.onReturnPressed: event => { if (!event.isAutoRepeat) control.press() }
    Keys.onEnterPressed: event => { if (!event.isAutoRepeat) control.press() }

    MouseArea {
        anchors.fill: parent
        visible: control.locked
    }

    Accessible.role: Accessible.Button
    Accessible.name: accessibleName
    Accessible.focusable: true
    Accessible.onPressAction: control.press()
}
