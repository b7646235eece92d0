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

    function show(): void {
        cameFrom = Window.activeFocusItem
        open = true
        bar.forceActiveFocus(Qt.MenuBarFocusReason)
    }
    function hide(): void {
        if (!open)
            return
        open = false
        if (cameFrom !== null && cameFrom.visible)
            cameFrom.forceActiveFocus(Qt.MenuBarFocusReason)
    }

    implicitHeight: open ? bar.implicitHeight : 0
    visible: open

    Keys.onEscapePressed: hide()

    Shortcut {
        sequence: "F10"
        onActivated: holder.open ? holder.hide() : holder.show()
    }
    MenuBar {
        id: bar

        objectName: "menuBar"
        width: parent.width
        focus: true

        CommandMenu {
            commands: holder.commands
            which: AppCommand.File
            title: qsTranslate("Loomstreet", "File")
            onClosed: holder.hide()
        }
        CommandMenu {
            commands: holder.commands
            which: AppCommand.View
            title: qsTranslate("Loomstreet", "View")
            onClosed: holder.hide()
        }
        CommandMenu {
            commands: holder.commands
            which: AppCommand.Go
            title: qsTranslate("Loomstreet", "Go")
            onClosed: holder.hide()
        }
        CommandMenu {
            commands: holder.commands
            which: AppCommand.Help
            title: qsTranslate("Loomstreet", "Help")
            onClosed: holder.hide()
        }
    }
}
