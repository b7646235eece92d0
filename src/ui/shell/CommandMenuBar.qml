import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Every command in one row of menus. It comes with Alt or F10 and goes with Esc or the next thing done.
FocusScope {
    id: holder

    required property AppCommands commands
    property bool open: false
    property Item cameFrom: null
    readonly property var made: bar.item

    function show(): void {
        cameFrom = Window.activeFocusItem
        if (bar.status === Loader.Null) {
            bar.setSource("CommandMenus.qml", { commands: commands })
            made.done.connect(hide)
        }
        open = true
        bar.item.forceActiveFocus(Qt.MenuBarFocusReason)
    }
    function hide(): void {
        if (!open)
            return
        open = false
        if (cameFrom !== null && cameFrom.visible)
            cameFrom.forceActiveFocus(Qt.MenuBarFocusReason)
    }

    implicitHeight: open ? bar.height : 0
    visible: open

    Keys.onEscapePressed: hide()

    Shortcut {
        sequence: "F10"
        enabled: holder.enabled
        onActivated: holder.open ? holder.hide() : holder.show()
    }
    Loader {
        id: bar

        width: parent.width
        focus: true
    }
}
