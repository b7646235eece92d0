import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The conversation with the stylist, as it stands on a page, beside a page and in a window of its own.
FocusScope {
    id: chat

    required property AppModel app
    // The window with pages that it is in; none in a window of its own.
    property WindowSession session: null
    property bool docked: false // beside a page
    // Somebody can see it.
    property bool shown: true
    // Where else it can be shown: buttons in the header.
    property alias places: header.places

    readonly property MiraChatModel mira: app.mira
    // A sheet lies over it.
    readonly property alias covered: sheets.open
    readonly property bool roomy: width >= 880
    // Lines are not longer than one reads.
    readonly property int measure: Theme.layoutReadingMeasure
    readonly property int side: roomy ? 264 : 0
    readonly property int padding: Math.max(Theme.space2 + 4, Math.floor((width - side - measure) / 2))

    // A piece, an order or the like is shown now, in the window's page.
    signal departed()

    function takeFocus(): void { writing.composer.input.forceActiveFocus() }
    function begin(): void {
        if (!shown)
            return
        mira.open()
        app.weather.begin()
    }
    // Where what she shows is opened.
    function pages(): WindowSession { return session ?? app.frontSession() }
    function openPiece(card: var, mode: int): void {
        pages().selected.openPiece(card.handle, card.item, mode)
        departed()
    }

    onShownChanged: begin()
    Component.onCompleted: begin()
    // What is typed beside the field is meant for her.
    Keys.onPressed: event => {
        const modifiers = event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier)
        event.accepted = modifiers === 0 && event.text.length > 0 && event.text > " " && event.text !== "\x7f"
        if (event.accepted)
            writing.composer.type(event.text)
    }

    Accessible.role: Accessible.Pane
    Accessible.name: mira.guideName

    MiraHeader {
        id: header

        anchors { left: parent.left; right: parent.right; top: parent.top }
        z: 1
        app: chat.app
        docked: chat.docked
        mira: chat.mira
        topicsBeside: chat.roomy
        onWardrobeAsked: sheets.showWardrobe()
        onMeasurementsAsked: sheets.showMeasurements(chat.pages())
        onWeatherAsked: writing.showWeather()
        onTopicBegun: chat.takeFocus()
    }
    Loader {
        id: topics

        objectName: "topicsBeside"
        anchors { left: parent.left; top: header.bottom; bottom: parent.bottom; margins: Theme.space1_5 }
        width: chat.side - Theme.space2
        visible: chat.roomy
        active: chat.roomy
        sourceComponent: MiraTopics {
            mira: chat.mira // qmllint disable unqualified
            onOpened: chat.takeFocus() // qmllint disable unqualified
        }
    }
    Hairline {
        x: chat.LayoutMirroring.enabled ? chat.width - chat.side : chat.side
        anchors { top: header.bottom; bottom: parent.bottom }
        width: Theme.strokeHairline
        visible: chat.roomy
    }
    MiraThread {
        id: thread

        anchors { left: parent.left; leftMargin: chat.side; right: parent.right; top: header.bottom; bottom: call.shown ? call.top : writing.top }
        app: chat.app
        mira: chat.mira
        padding: chat.padding
        shown: chat.shown
        onPieceOpened: (card, mode) => chat.openPiece(card, mode)
        onLookAsked: handles => sheets.showLook(handles, chat.pages())
        onMeasurementsAsked: sheets.showMeasurements(chat.pages())
        onOrderOpened: id => {
            chat.pages().selected.openOrder(id)
            chat.departed()
        }
        onPromptChosen: text => {
            chat.mira.sendText(text)
            thread.toLatest()
            chat.takeFocus()
        }
    }
    CallBar {
        id: call

        objectName: "callBar"
        anchors { left: writing.left; right: writing.right; bottom: writing.top; bottomMargin: Theme.space1 }
        call: chat.app.call
    }
    MiraComposer {
        id: writing

        anchors { left: parent.left; leftMargin: chat.side + chat.padding; right: parent.right; rightMargin: chat.padding; bottom: parent.bottom; bottomMargin: Theme.space2 }
        focus: true
        app: chat.app
        mira: chat.mira
        onSent: thread.toLatest()
        onWardrobeAsked: sheets.showWardrobe()
    }
    MiraSheets {
        id: sheets

        app: chat.app
        onNewPiecesAsked: {
            chat.pages().selected.selectItem(1)
            chat.departed()
        }
    }
}
