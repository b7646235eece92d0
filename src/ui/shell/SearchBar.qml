import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The field that searches the shop and opens links. While one types it suggests where to go.
SearchField {
    id: bar

    required property AppModel app
    required property WindowSession session

    readonly property Router router: session.selected
    // Made when the field is first gone to.
    property SuggestionsModel suggestions: null
    // Closed by the shopper, until they type again.
    property bool dismissed: false
    readonly property bool suggesting: input.activeFocus && !dismissed && suggestions !== null && !suggestions.isEmpty

    // The shopper is done here: the page has the keyboard again.
    signal finished()

    // A key that was pressed where nothing takes text.
    function takeKey(text: string): void {
        input.forceActiveFocus(Qt.ShortcutFocusReason)
        bar.text = text
        input.cursorPosition = text.length
    }
    function begin(): void {
        if (suggestions === null)
            suggestions = app.makeSuggestions(bar)
        suggestions.prepare()
    }
    // A link opens what it means; anything else is searched for.
    function go(inNewTab: bool): void {
        const words = bar.text.trim()
        if (words !== "")
            open(SuggestionsModel.Queries, "", words, inNewTab)
    }
    function open(section: int, key: string, words: string, inNewTab: bool): void {
        const isLink = section === SuggestionsModel.Queries && suggestions.isLink
        bar.text = ""
        dismissed = true
        if (inNewTab && section !== SuggestionsModel.Pieces)
            session.newTab()
        if (section === SuggestionsModel.Pieces)
            router.openPiece(key, undefined, inNewTab ? OpenModes.NewTab : OpenModes.Page)
        else if (section === SuggestionsModel.Collections)
            router.openCollection(key, words)
        else if (!isLink || !router.openLink(words)) {
            if (!isLink)
                suggestions.noteSearch(words)
            router.openSearch(words)
        }
        bar.finished()
    }
    function openCurrent(inNewTab: bool): void {
        const section = suggestions.currentSection
        if (section === SuggestionsModel.None || !suggesting)
            go(inNewTab)
        else
            open(section, suggestions.currentKey, suggestions.currentText, inNewTab)
    }
    function searchByImage(): void {
        bar.text = ""
        router.openImageSearch()
        bar.finished()
    }
    function stepBack(): void {
        if (suggesting) {
            dismissed = true
            return
        }
        bar.text = ""
        bar.finished()
    }
    function choose(step: int): void {
        if (suggesting)
            suggestions.move(step)
        else
            dismissed = false
    }

    objectName: "search"
    placeholderText: qsTranslate("Loomstreet", "Search, or paste a link")
    hint: suggesting ? suggestions.currentSpoken : ""

    onTextChanged: {
        dismissed = false
        if (suggestions !== null)
            suggestions.text = text
    }
    onKeyPressed: event => {
        const inNewTab = (event.modifiers & Qt.ControlModifier) !== 0
        event.accepted = true
        if (event.key === Qt.Key_Down)
            choose(1)
        else if (event.key === Qt.Key_Up)
            choose(-1)
        else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
            openCurrent(inNewTab)
        else if (event.key === Qt.Key_Escape)
            stepBack()
        else if (event.key === Qt.Key_Delete && suggesting && suggestions.currentSection === SuggestionsModel.Recents)
            suggestions.forgetSearch(suggestions.currentText)
        else
            event.accepted = false
    }
    Connections {
        target: bar.input
        function onActiveFocusChanged(): void {
            if (!bar.input.activeFocus)
                return
            // Who only passes by on the way to something else is shown nothing.
            bar.dismissed = bar.input.focusReason === Qt.TabFocusReason || bar.input.focusReason === Qt.BacktabFocusReason
            bar.begin()
        }
        function onPressed(): void { bar.dismissed = false }
    }

    IconButton {
        objectName: "searchByImage"
        iconName: "camera"
        text: qsTranslate("Loomstreet", "Search by Image…")
        onClicked: bar.searchByImage()
    }
}
