pragma ComponentBehavior: Bound
import QtQuick
import QtQml.Models
import Loomstreet.Model

// The pages of one tab, the section's root at the bottom. It follows what the router says and decides nothing.
Item {
    id: stack

    required property AppModel app
    required property WindowSession session
    required property Router router
    property bool selected: false

    // Pages further below than this are put away, keeping their models and places.
    readonly property int aliveDepth: 4
    readonly property PageHost topPage: repeater.count > 0 ? repeater.itemAt(entries.count - 1) as PageHost : null
    readonly property bool settled: topPage?.settled ?? false

    function takeFocus(): void {
        if (topPage)
            topPage.takeFocus()
    }
    function rebuild(): void {
        entries.clear()
        for (let depth = 0; depth <= router.depth; ++depth)
            entries.append({ depth: depth })
    }

    Component.onCompleted: rebuild()
    onSelectedChanged: if (selected) takeFocus()

    ListModel { id: entries }

    Connections {
        target: stack.router
        function onReset(): void {
            stack.rebuild()
            stack.takeFocus()
        }
        function onPushed(depth: int): void {
            entries.append({ depth: depth })
            stack.takeFocus()
        }
        function onPopped(depth: int): void {
            entries.remove(depth + 1, entries.count - depth - 1)
            stack.takeFocus()
        }
        function onReplaced(depth: int): void {
            entries.remove(depth, 1)
            entries.append({ depth: depth })
            stack.takeFocus()
        }
    }
    Repeater {
        id: repeater

        model: entries

        PageHost {
            anchors.fill: parent
            app: stack.app
            session: stack.session
            router: stack.router
            isOnTop: depth === entries.count - 1
            tabSelected: stack.selected
            near: depth > entries.count - 1 - stack.aliveDepth
        }
    }
}
