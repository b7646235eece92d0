pragma ComponentBehavior: Bound
import QtQml
import QtQml.Models
import Loomstreet.Components
import Loomstreet.Model

// One menu of commands.
Menu {
    id: menu

    required property AppCommands commands
    required property int which

    property int revision: 0

    Instantiator {
        model: menu.commands.commands(menu.which)
        onObjectAdded: (index, object) => menu.insertItem(index, object)
        onObjectRemoved: (index, object) => menu.removeItem(object)

        CommandMenuItem {
            commands: menu.commands
            revision: menu.revision
        }
    }
    property Connections watch: Connections {
        target: menu.commands
        function onAvailabilityChanged(): void { ++menu.revision }
    }
}
