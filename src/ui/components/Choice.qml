import QtQuick
import QtQuick.Templates as T
import Loomstreet.Theme

// One of several, of which `selected` says whether it is the chosen one; a press only asks for it. It has no look of
// its own.
T.RadioButton {
    id: control

    property bool selected: false
    // What assistive tools call it, where the text on it does not say enough.
    property string accessibleName: text

    function press(): void {
        if (enabled)
            clicked()
    }

    implicitWidth: Math.max(implicitBackgroundWidth + leftInset + rightInset,
                            implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(implicitBackgroundHeight + topInset + bottomInset,
                             implicitContentHeight + topPadding + bottomPadding)
    // Who is chosen is decided elsewhere.
    checkable: false
    autoExclusive: false
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.alphaDisabled

    Keys.onReturnPressed: event => { if (!event.isAutoRepeat) control.press() }
    Keys.onEnterPressed: event => { if (!event.isAutoRepeat) control.press() }

    Accessible.role: Accessible.RadioButton
    Accessible.name: accessibleName
    Accessible.focusable: true
    Accessible.checkable: true
    Accessible.checked: selected
    Accessible.onPressAction: control.press()
}
