import QtQuick
import QtQuick.Templates as T
import Loomstreet.Theme

// One menu's title in the row of menus.
T.MenuBarItem {
    id: item

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Theme.targetMinimum, implicitContentHeight + topPadding + bottomPadding)
    horizontalPadding: Theme.space1_5

    contentItem: TextLabel {
        text: item.text
        type: Theme.type.small
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    background: Rectangle {
        radius: Theme.radiusControl
        color: item.down || item.highlighted ? Theme.hover : "transparent"
    }

    Accessible.role: Accessible.MenuItem
    Accessible.name: text
    Accessible.onPressAction: triggered()
}
