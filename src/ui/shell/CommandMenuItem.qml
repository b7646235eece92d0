import QtQuick
import Loomstreet.Components
import Loomstreet.Model

// A command as a row of a menu.
MenuItem {
    id: item

    required property var modelData
    required property AppCommands commands

    // Raised whenever what is enabled may have changed.
    property int revision: 0
    property bool chosen: false

    objectName: "command." + modelData.id
    text: modelData.title
    shortcut: modelData.shortcut.replace(/\+/g, " ").trim()
    enabled: revision >= 0 && commands.isEnabled(modelData.id)
    // A menu gives the keyboard back as it closes, and then the command may take it.
    onTriggered: chosen = true

    readonly property Connections closing: Connections {
        target: item.menu
        function onClosed(): void {
            if (item.chosen)
                item.commands.perform(item.modelData.id)
            item.chosen = false
        }
    }
}
