import QtQuick
import QtQuick.Templates as T
import Loomstreet.Theme

// A row of a menu: icon or check-mark, words, and the keys that do the same at the end.
T.MenuItem {
    id: item

    property string iconName
    // The keys in words. An action's own are shown unless others are given.
    property string shortcut: action && typeof action.shortcut === "string" ? action.shortcut.replace(/\+/g, " ") : ""

    // Whether it has something before its words, and whether any row of its menu has: words begin below each other.
    readonly property bool leads: checkable || iconName !== ""
    property bool indented: leads

    function press(): void {
        if (!enabled)
            return
        if (checkable) {
            toggle()
            toggled()
        }
        if (action)
            action.trigger(item)
        else
            clicked()
    }

    implicitWidth: leftPadding + implicitContentWidth + rightPadding
    implicitHeight: Math.max(Theme.targetMinimum, implicitContentHeight + topPadding + bottomPadding)
    horizontalPadding: Theme.space1_5
    verticalPadding: Theme.spaceHalf
    spacing: Theme.space1_5
    opacity: enabled ? 1 : Theme.alphaDisabled

    contentItem: Item {
        implicitWidth: (item.indented ? 16 + item.spacing : 0) + label.implicitWidth
                       + (keys.visible ? keys.implicitWidth + 2 * item.spacing : 0)
                       + (item.subMenu ? 16 + item.spacing : 0)
        implicitHeight: label.implicitHeight

        TextLabel {
            id: label

            anchors.left: parent.left
            anchors.leftMargin: item.indented ? 16 + item.spacing : 0
            anchors.right: keys.visible ? keys.left : parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: item.text
            type: Theme.type.small
            Accessible.ignored: true
        }
        TextLabel {
            id: keys

            objectName: "shortcut"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            text: item.shortcut
            type: Theme.type.caption
            color: Theme.muted
            Accessible.ignored: true
        }
    }
    indicator: Icon {
        x: item.mirrored ? item.width - width - item.rightPadding : item.leftPadding
        anchors.verticalCenter: parent.verticalCenter
        visible: name !== ""
        name: item.checkable ? (item.checked ? "checkmark" : "") : item.iconName
        size: 16
        color: item.checkable ? Theme.accent : Theme.muted
    }
    arrow: Icon {
        x: item.mirrored ? item.leftPadding : item.width - width - item.rightPadding
        anchors.verticalCenter: parent.verticalCenter
        visible: item.subMenu !== null
        name: item.subMenu ? "chevron.right" : ""
        size: 16
        color: Theme.muted
    }
    background: Rectangle {
        radius: Theme.radiusControl - 2
        color: item.down ? Theme.pressed : item.highlighted ? Theme.hover : "transparent"
    }

    Accessible.role: Accessible.MenuItem
    Accessible.name: text
    Accessible.description: shortcut
    Accessible.checkable: checkable
    Accessible.checked: checked
    Accessible.onPressAction: item.press()
}
