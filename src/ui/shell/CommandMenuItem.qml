import Loomstreet.Components
import Loomstreet.Model

// A command as a row of a menu.
MenuItem {
    id: item

    required property var modelData
    required property AppCommands commands

    // Raised whenever what is enabled may have changed.
    property int revision: 0

    objectName: "command." + modelData.id
    text: modelData.title
    shortcut: modelData.shortcut.replace(/\+/g, " ").trim()
    enabled: revision >= 0 && commands.isEnabled(modelData.id)
    onTriggered: commands.perform(modelData.id)
}
