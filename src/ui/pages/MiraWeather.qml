import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Where the shopper is, so that the stylist dresses them for the weather: typed, or as the desktop says; or not at all.
Popover {
    id: popover

    required property MiraWeatherStore weather

    readonly property bool typed: city.text.trim() !== ""
    // Something was asked for here: only then is it a failure that it is not known.
    property bool asked: false

    function ask(): void {
        if (!typed)
            return
        asked = true
        weather.setCity(city.text.trim())
    }

    x: parent ? (parent.LayoutMirroring.enabled ? 0 : parent.width - width) : 0
    y: -height - Theme.space1
    name: qsTranslate("Loomstreet", "Weather")
    onAboutToShow: {
        asked = false
        city.text = weather.city
        weather.refresh()
    }

    contentItem: Column {
        spacing: Theme.space1_5

        Item {
            implicitWidth: 288 * Theme.textScale
            implicitHeight: Math.max(disc.height, words.height)

            IconDisc {
                id: disc

                anchors { left: parent.left; verticalCenter: parent.verticalCenter }
                iconName: "cloud"
                tone: popover.weather.isKnown && popover.weather.isShared ? "accent" : "plain"
            }
            TitleAndNote {
                id: words

                anchors { left: disc.right; leftMargin: Theme.space1_5; right: parent.right; verticalCenter: parent.verticalCenter }
                title: popover.weather.isKnown ? popover.weather.text : qsTranslate("Loomstreet", "Weather")
                note: popover.weather.isKnown ? popover.weather.condition
                                              : qsTranslate("Loomstreet", "Where are you? The look will suit the day.")
            }
        }
        SwitchRow {
            objectName: "shareWeather"
            width: parent.width
            divided: false
            text: qsTranslate("Loomstreet", "Style me for the weather")
            checked: popover.weather.isShared
            onToggled: {
                popover.weather.isShared = checked
                checked = Qt.binding(() => popover.weather.isShared)
            }
        }
        Item {
            width: parent.width
            height: city.height
            enabled: popover.weather.isShared

            FieldInput {
                id: city

                objectName: "city"
                width: parent.width
                focus: true
                trailingRoom: set.width + Theme.space1
                label: qsTranslate("Loomstreet", "City")
                maximumLength: 120
                error: popover.asked ? popover.weather.failure : ""
                message: popover.asked || popover.weather.isKnown ? "" : popover.weather.failure
                onAccepted: popover.ask()
            }
            PushButton {
                id: set

                objectName: "setCity"
                anchors { right: parent.right; top: parent.top; topMargin: city.textInput.y }
                enabled: popover.typed
                busy: popover.weather.isLoading && !popover.weather.isLocating
                text: qsTranslate("Loomstreet", "Set")
                onClicked: popover.ask()
            }
        }
        PushButton {
            objectName: "locate"
            anchors.left: parent.left
            visible: popover.weather.canLocate
            enabled: popover.weather.isShared
            size: "small"
            busy: popover.weather.isLocating
            iconName: "location"
            text: qsTranslate("Loomstreet", "Use my location")
            onClicked: {
                popover.asked = true
                popover.weather.locate()
            }
        }
    }
    // A city that was found stands as the service calls it.
    Connections {
        target: popover.weather
        function onChanged(): void {
            if (!popover.weather.isLoading && popover.weather.failure === "" && popover.weather.city !== "" && !city.textInput.activeFocus)
                city.text = popover.weather.city
        }
    }
}
