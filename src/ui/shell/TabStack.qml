pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Model

// The pages of one tab, as the router says; one of them is on top. Those that the shopper was on stay as they were.
Item {
    id: stack

    required property AppModel app
    required property WindowSession session
    required property Router router
    property bool selected: false

    // Pages further away than this from the one on top are put away, keeping their models and places.
    readonly property int aliveBehind: 3
    readonly property int aliveAhead: 1
    readonly property NavigationPath path: router?.navigationPath ?? null // the router may go first
    readonly property PageHost topPage: path && repeater.count > path.top ? repeater.itemAt(path.top) as PageHost : null
    readonly property bool settled: topPage?.settled ?? false

    function takeFocus(): void {
        if (topPage)
            topPage.takeFocus()
    }

    onSelectedChanged: if (selected) takeFocus()

    Connections {
        target: stack.router
        function onTopChanged(): void {
            if (stack.selected)
                stack.takeFocus()
        }
    }
    Repeater {
        id: repeater

        model: stack.path

        PageHost {
            required property int index

            anchors.fill: parent
            app: stack.app
            session: stack.session
            router: stack.router
            isOnTop: index === stack.path?.top
            tabSelected: stack.selected
            near: stack.path ? index >= stack.path.top - stack.aliveBehind && index <= stack.path.top + stack.aliveAhead : false
        }
    }
}
