pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Where the shopper writes to the stylist, with all that goes along: the piece they speak of, what a look is built
// around, their own pieces, the weather.
Column {
    id: writing

    property AppModel app
    property MiraChatModel mira

    readonly property alias composer: composer
    readonly property bool replying: mira.isReplying
    readonly property var forecast: mira.weather

    signal sent()
    signal wardrobeAsked()

    function send(): void {
        mira.send()
        sent()
    }
    function showWeather(): void {
        if (weather.status === Loader.Null)
            weather.setSource("MiraWeather.qml", { weather: app.weather, parent: weatherButton })
        weather.made.open()
    }

    spacing: Theme.space1

    component ContextChip: Chip {
        width: Math.min(implicitWidth, composer.width - 2 * composer.inset)
        visible: text !== ""
        compact: true
        selected: true
        removable: true
    }

    MiraQueue {
        width: parent.width
        mira: writing.mira
    }
    ChatComposer {
        id: composer

        objectName: "composer"
        width: parent.width
        focus: true
        mostLines: Window.height < 640 ? 4 : 8
        name: qsTranslate("Loomstreet", "Write to %1").arg(writing.mira.guideName)
        placeholderText: writing.replying ? writing.mira.replyingNote : name
        canSend: writing.mira.canSend
        onEdited: text => { writing.mira.draft = text }
        onSendAsked: writing.send()
        Component.onCompleted: setText(writing.mira.draft)

        Accessible.role: Accessible.Grouping
        Accessible.name: name

        chips: [
            ContextChip {
                objectName: "context.product"
                iconName: "figure.stand.dress"
                text: writing.mira.product?.title ?? ""
                onClicked: writing.mira.removeProduct()
            },
            ContextChip {
                objectName: "context.anchor"
                iconName: "sparkles"
                text: writing.mira.anchorName === "" ? "" : qsTranslate("Loomstreet", "Look around %1").arg(writing.mira.anchorName)
                onClicked: writing.mira.removeAnchor()
            },
            ContextChip {
                objectName: "context.weather"
                iconName: "cloud"
                text: writing.forecast.isKnown ? writing.forecast.text : ""
                onClicked: writing.mira.removeWeather()
            },
            ContextChip {
                objectName: "context.wardrobe"
                iconName: "hanger"
                text: writing.mira.wardrobeCount > 0 ? qsTranslate("Loomstreet", "My pieces · %L1").arg(writing.mira.wardrobeCount) : ""
                onClicked: writing.mira.removeWardrobe()
            }
        ]
        tools: [
            IconButton {
                objectName: "wardrobe"
                iconName: "hanger"
                color: Theme.muted
                on: writing.mira.wardrobeCount > 0
                text: qsTranslate("Loomstreet", "Style with my pieces")
                onClicked: writing.wardrobeAsked()
            },
            IconButton {
                id: weatherButton

                objectName: "weather"
                iconName: "cloud"
                color: Theme.muted
                on: weather.made?.visible ?? false
                showsToolTip: !on
                text: qsTranslate("Loomstreet", "Weather")
                onClicked: writing.showWeather()
            }
        ]
    }
    Connections {
        target: writing.mira
        function onDraftChanged(): void { composer.setText(writing.mira.draft) }
    }
    // Made when it is first asked for.
    Loader {
        id: weather

        readonly property var made: item
    }
}
