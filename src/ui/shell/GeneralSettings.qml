import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What does not belong to one matter alone.
SettingsPage {
    id: page

    required property AppModel app

    title: qsTranslate("Loomstreet", "General")

    SettingsChoice {
        width: page.width
        title: qsTranslate("Loomstreet", "Sizes in")
        value: page.app.settings.sizeUnit
        choices: [
            { value: "metric", title: qsTranslate("Loomstreet", "Centimetres and kilograms"), note: "" },
            { value: "imperial", title: qsTranslate("Loomstreet", "Inches and pounds"), note: "" }
        ]
        onChosen: value => page.app.settings.sizeUnit = value
    }
    TextLabel {
        width: page.width
        text: qsTranslate("Loomstreet", "LOOMSTREET %1").arg(page.app.version)
        type: Theme.type.caption
        figures: true
        color: Theme.muted
    }
}
