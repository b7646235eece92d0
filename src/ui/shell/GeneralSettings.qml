import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What does not belong to one matter alone.
SettingsPage {
    id: page

    required property AppModel app

    title: qsTranslate("Loomstreet", "General")

    Column {
        width: page.width

        SettingsPick {
            objectName: "country"
            width: page.width
            app: page.app
            text: qsTranslate("Loomstreet", "Country and currency")
            value: page.app.market.currency === "" ? page.app.market.countryName : page.app.market.countryName + " · " + page.app.market.currency
        }
        SettingsPick {
            objectName: "language"
            width: page.width
            app: page.app
            picksLanguage: true
            text: qsTranslate("Loomstreet", "Language of the shop")
            value: page.app.market.languageName
        }
        SwitchRow {
            objectName: "splitPreview"
            width: page.width
            text: qsTranslate("Loomstreet", "Open pieces beside the grid")
            note: qsTranslate("Loomstreet", "In wide windows a piece is shown next to where it was found")
            checked: page.app.settings.splitPreview
            onToggled: page.app.settings.splitPreview = checked
        }
    }
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
