import QtQuick
import Loomstreet.Components
import Loomstreet.Model

// What the store learns of the shopper.
SettingsPage {
    id: page

    required property AppSettings settings

    title: qsTranslate("Loomstreet", "Privacy")

    SwitchRow {
        objectName: "sharesUsage"
        width: page.width
        text: qsTranslate("Loomstreet", "Tell the store which pages are looked at")
        note: qsTranslate("Loomstreet", "Without your name; it helps the store choose what to show. Off, only what is essential is sent.")
        checked: page.settings.sharesUsage
        onToggled: page.settings.sharesUsage = checked
    }
}
