import QtQml
import Loomstreet.Components
import Loomstreet.Model

// The menus of the commands in a row.
MenuBar {
    id: bar

    required property AppCommands commands

    // A menu was closed.
    signal done()

    objectName: "menuBar"

    CommandMenu {
        commands: bar.commands
        which: AppCommand.File
        title: qsTranslate("Loomstreet", "File")
        onClosed: bar.done()
    }
    CommandMenu {
        commands: bar.commands
        which: AppCommand.View
        title: qsTranslate("Loomstreet", "View")
        onClosed: bar.done()
    }
    CommandMenu {
        commands: bar.commands
        which: AppCommand.Go
        title: qsTranslate("Loomstreet", "Go")
        onClosed: bar.done()
    }
    CommandMenu {
        commands: bar.commands
        which: AppCommand.Help
        title: qsTranslate("Loomstreet", "Help")
        onClosed: bar.done()
    }
}
