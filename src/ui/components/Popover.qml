import QtQuick
import QtQuick.Templates as T
import Loomstreet.Theme

// A small surface that opens from a control, holds controls itself, and closes with Esc or a press elsewhere. The
// focus goes into it and back to where it came from.
T.Popup {
    id: popover

    property Item cameFrom: null
    property string name // for assistive tools

    onAboutToShow: cameFrom = parent ? parent.Window.activeFocusItem : null
    onClosed: {
        const holder = parent ? parent.Window.activeFocusItem : null
        if (cameFrom !== null && cameFrom.visible && (holder === null || holder === parent.Window.contentItem))
            cameFrom.forceActiveFocus(Qt.PopupFocusReason)
        cameFrom = null
    }

    implicitWidth: Math.max(180, contentWidth + leftPadding + rightPadding)
    implicitHeight: contentHeight + topPadding + bottomPadding
    margins: Theme.space1
    padding: Theme.space2
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    background: FloatingSurface {
        radius: Theme.radiusPanel

        Accessible.role: Accessible.Dialog
        Accessible.name: popover.name
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.durationPopover }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.durationHover }
    }
}
