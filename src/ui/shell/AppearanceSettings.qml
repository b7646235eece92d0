import QtQuick
import Loomstreet.Components
import Loomstreet.Model

// How the windows look.
SettingsPage {
    id: page

    required property AppSettings settings

    title: qsTranslate("Loomstreet", "Appearance")

    SettingsChoice {
        width: page.width
        title: qsTranslate("Loomstreet", "Colours")
        value: page.settings.appearance
        choices: [
            { value: "system", title: qsTranslate("Loomstreet", "As the desktop"),
              note: qsTranslate("Loomstreet", "Follows the desktop between light and dark") },
            { value: "light", title: qsTranslate("Loomstreet", "Light"), note: "" },
            { value: "dark", title: qsTranslate("Loomstreet", "Dark"), note: "" }
        ]
        onChosen: value => page.settings.appearance = value
    }
    SwitchRow {
        objectName: "desktopFrame"
        width: page.width
        text: qsTranslate("Loomstreet", "The desktop's window frame")
        note: qsTranslate("Loomstreet", "A title bar above the tabs, as other windows have it")
        checked: page.settings.windowFrame === "desktop"
        onToggled: page.settings.windowFrame = checked ? "desktop" : "own"
    }
}
