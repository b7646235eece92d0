pragma ComponentBehavior: Bound
import QtQuick
import QtQml.Models
import Loomstreet.Model

// The keys of the commands.
Item {
    id: shortcuts

    required property AppCommands commands

    Instantiator {
        model: shortcuts.commands.allCommands()

        Shortcut {
            required property var modelData

            sequences: modelData.shortcuts
            enabled: shortcuts.enabled
            onActivated: shortcuts.commands.perform(modelData.id)
            onActivatedAmbiguously: shortcuts.commands.perform(modelData.id)
        }
    }
}
