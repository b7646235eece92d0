import QtQml
import Loomstreet.Components
import Loomstreet.Model

// Every command, for the pointer.
Menu {
    id: menu

    required property AppCommands commands

    CommandMenu {
        commands: menu.commands
        which: AppCommand.File
        title: qsTranslate("Loomstreet", "File")
    }
    CommandMenu {
        commands: menu.commands
        which: AppCommand.View
        title: qsTranslate("Loomstreet", "View")
    }
    CommandMenu {
        commands: menu.commands
        which: AppCommand.Go
        title: qsTranslate("Loomstreet", "Go")
    }
    CommandMenu {
        commands: menu.commands
        which: AppCommand.Help
        title: qsTranslate("Loomstreet", "Help")
    }
}
