pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Where the shopper shops and in which language: two lists to search and pick from.
Popover {
    id: picker

    required property AppModel app
    // One of the two alone, where the other has a control of its own.
    property bool onlyCountries: false
    property bool onlyLanguages: false

    readonly property bool picksLanguage: onlyLanguages || (!onlyCountries && kinds.currentIndex === 1)
    readonly property MarketChoicesModel countries: onlyLanguages ? null : app.makeCountries(picker)
    readonly property MarketChoicesModel languages: onlyCountries ? null : app.makeLanguages(picker)
    readonly property MarketChoicesModel choices: picksLanguage ? languages : countries

    function choose(row: int): void {
        if (row < 0 || row >= list.count)
            return
        picker.close()
        choices.choose(row)
    }
    function begin(): void {
        field.text = ""
        showCurrent()
        field.forceActiveFocus(Qt.PopupFocusReason)
    }
    function showCurrent(): void {
        list.currentIndex = choices.filter === "" ? Math.max(0, choices.currentRow) : 0
        list.positionViewAtIndex(list.currentIndex, choices.filter === "" ? ListView.Center : ListView.Beginning)
    }
    function step(by: int): void {
        list.currentIndex = Math.max(0, Math.min(list.currentIndex + by, list.count - 1))
        list.positionViewAtIndex(list.currentIndex, ListView.Contain)
    }
    function takeKey(event: var): void {
        const page = Math.max(1, Math.floor(list.height / 36) - 1)
        event.accepted = true
        if (event.key === Qt.Key_Down)
            step(1)
        else if (event.key === Qt.Key_Up)
            step(-1)
        else if (event.key === Qt.Key_PageDown)
            step(page)
        else if (event.key === Qt.Key_PageUp)
            step(-page)
        else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
            choose(list.currentIndex)
        else
            event.accepted = false
    }

    objectName: "marketPicker"
    name: qsTranslate("Loomstreet", "Market and language")
    padding: Theme.space1_5
    contentWidth: 336
    contentHeight: Math.min(460, (picker.parent?.Window.height ?? 600) - 160)
    onOpened: begin()

    contentItem: FocusScope {
        focus: true

        SegmentedControl {
            id: kinds

            objectName: "kinds"
            anchors { top: parent.top; horizontalCenter: parent.horizontalCenter }
            visible: !picker.onlyCountries && !picker.onlyLanguages
            height: visible ? implicitHeight : 0
            segments: [qsTranslate("Loomstreet", "Country"), qsTranslate("Loomstreet", "Language")]
            name: picker.name
            onActivated: {
                field.text = ""
                picker.showCurrent()
            }
        }
        TextBox {
            id: field

            objectName: "filter"
            anchors { left: parent.left; right: parent.right; top: kinds.bottom; topMargin: kinds.visible ? Theme.space1_5 : 0 }
            focus: true
            type: Theme.type.small
            height: 36
            placeholderText: picker.picksLanguage ? qsTranslate("Loomstreet", "Search languages")
                                                  : qsTranslate("Loomstreet", "Search countries and currencies")
            maximumLength: 60
            background: Rectangle {
                radius: Theme.radiusControl
                color: Theme.surface
                border { width: Theme.strokeControl; color: field.activeFocus ? Theme.ink : Theme.border }

                FocusRing { target: field }
            }
            onTextChanged: {
                picker.choices.filter = text
                picker.showCurrent()
            }
            Keys.onPressed: event => picker.takeKey(event)

            Accessible.name: placeholderText
            Accessible.description: list.currentItem?.Accessible.name ?? ""
        }
        ListView {
            id: list

            objectName: "choices"
            anchors { left: parent.left; right: parent.right; top: field.bottom; bottom: parent.bottom; topMargin: Theme.space1 }
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            model: picker.choices
            keyNavigationEnabled: false
            T.ScrollBar.vertical: ScrollBar {}

            Accessible.role: Accessible.List
            Accessible.name: picker.picksLanguage ? qsTranslate("Loomstreet", "Languages") : qsTranslate("Loomstreet", "Countries")

            delegate: MarketChoiceRow {
                objectName: "choice" + index
                width: list.width - Theme.space1_5 // beside the bar
                highlighted: ListView.isCurrentItem
                onChosen: picker.choose(index)
            }
        }
        TextLabel {
            objectName: "noMatch"
            anchors { left: parent.left; right: parent.right; top: field.bottom; margins: Theme.space3 }
            horizontalAlignment: Text.AlignHCenter
            visible: list.count === 0 && field.text !== "" && !failure.visible
            text: picker.picksLanguage ? qsTranslate("Loomstreet", "No language matches “%1”").arg(field.text)
                                       : qsTranslate("Loomstreet", "No country matches “%1”").arg(field.text)
            type: Theme.type.small
            color: Theme.muted
            wrapMode: Text.Wrap
        }
        Column {
            anchors { left: parent.left; right: parent.right; top: field.bottom; topMargin: Theme.space2 }
            visible: picker.choices.isLoading
            spacing: Theme.space2

            Repeater {
                model: picker.choices.isLoading ? 8 : 0

                Skeleton {
                    anchors.left: parent?.left
                    width: parent?.width ?? 0
                    height: 20
                }
            }
        }
        ErrorState {
            id: failure

            objectName: "failed"
            anchors { left: parent.left; right: parent.right; verticalCenter: list.verticalCenter }
            visible: picker.choices.errorText !== ""
            sentence: picker.choices.errorText
            takesFocus: false
            onRetry: picker.choices.retry()
        }
    }
}
