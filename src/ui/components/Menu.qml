import QtQuick
import QtQuick.Templates as T
import Loomstreet.Theme

// A menu, worked by pointer or keys. It takes MenuItem, MenuSeparator, other menus and actions.
T.Menu {
    id: menu

    property Item cameFrom: null

    function align(): void {
        const rows = []
        for (let i = 0; i < count; ++i) {
            const row = itemAt(i) as MenuItem
            if (row !== null)
                rows.push(row)
        }
        const indented = rows.some(row => row.leads)
        for (const row of rows)
            row.indented = indented
    }

    // A window alone does not remember who had the focus before a menu. Whoever took it meanwhile keeps it.
    onAboutToShow: {
        cameFrom = parent ? parent.Window.activeFocusItem : null
        align()
    }
    onClosed: {
        const holder = parent ? parent.Window.activeFocusItem : null
        if (cameFrom !== null && cameFrom.visible && (holder === null || holder === parent.Window.contentItem))
            cameFrom.forceActiveFocus(Qt.PopupFocusReason)
        cameFrom = null
    }

    implicitWidth: Math.max(180, contentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(Theme.targetMinimum, contentHeight + topPadding + bottomPadding)
    // As wide as its widest row: the rows know, the list does not.
    contentWidth: {
        let widest = 0
        for (let i = 0; i < count; ++i)
            widest = Math.max(widest, itemAt(i)?.implicitWidth ?? 0)
        return widest
    }
    margins: Theme.space1
    padding: Theme.spaceHalf
    overlap: -Theme.spaceHalf / 2
    cascade: true

    delegate: MenuItem {}
    contentItem: ListView {
        implicitHeight: contentHeight
        model: menu.contentModel
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive
        currentIndex: menu.currentIndex
        T.ScrollBar.vertical: ScrollBar {}
    }
    background: FloatingSurface {}

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.durationPopover }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.durationHover }
    }
}
