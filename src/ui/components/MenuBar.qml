import QtQuick
import QtQuick.Templates as T
import Loomstreet.Theme

// The row of menus, for those who look for every command in one place.
T.MenuBar {
    id: bar

    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(Theme.targetMinimum, contentHeight + topPadding + bottomPadding)
    horizontalPadding: Theme.spaceHalf

    delegate: MenuBarItem {}
    contentItem: Row {
        Repeater { model: bar.contentModel }
    }
    background: Rectangle { color: Theme.frame }
}
