pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Model

// The pages of every tab of a window; those of the selected tab are shown.
Item {
    id: pages

    required property AppModel app
    required property WindowSession session

    readonly property TabStack current: repeater.count > 0 ? repeater.itemAt(session.selectedIndex) as TabStack : null
    readonly property bool settled: current?.settled ?? false
    // The window itself is seen first; pages are built into it.
    property bool begun: false
    property bool entered: false

    // The first page there is takes the focus that waits for it, unless a search has been begun meanwhile.
    onCurrentChanged: {
        if (current && !entered) {
            entered = true
            if (!(Window.activeFocusItem instanceof TextInput))
                takeFocus()
        }
    }

    function takeFocus(): void {
        if (current)
            current.takeFocus()
    }

    clip: true

    Repeater {
        id: repeater

        model: pages.begun ? pages.session.tabs : null

        TabStack {
            required property int index

            anchors.fill: parent
            app: pages.app
            session: pages.session
            selected: pages.session.selectedIndex === index
            visible: selected
        }
    }
}
