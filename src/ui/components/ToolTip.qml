import QtQuick
import QtQuick.Templates as T
import Loomstreet.Theme

// Words for what shows none, with the keys that do the same.
T.ToolTip {
    id: toolTip

    property string shortcut

    x: parent ? Math.round((parent.width - implicitWidth) / 2) : 0
    y: parent ? parent.height + Theme.spaceHalf : 0
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Theme.targetMinimum, implicitContentHeight + topPadding + bottomPadding)
    horizontalPadding: Theme.space1_5
    verticalPadding: Theme.spaceHalf
    margins: Theme.space1
    delay: 500
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent | T.Popup.CloseOnReleaseOutsideParent

    contentItem: LabelRow {
        text: toolTip.text
        note: toolTip.shortcut
        type: Theme.type.small
    }
    background: FloatingSurface {}

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.durationHover }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.durationHover }
    }
}
