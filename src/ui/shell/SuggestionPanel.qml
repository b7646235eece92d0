pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What the search field suggests, below it. Every section has its fixed place as long as something is typed, so that
// what the store answers later moves nothing.
Item {
    id: panel

    required property SuggestionsModel suggestions
    property real availableHeight: 600

    readonly property bool typing: suggestions.text.trim() !== ""
    readonly property bool isLink: suggestions.isLink
    readonly property bool hasPieces: (typing && !isLink) || suggestions.pieces.filled > 0
    readonly property bool hasList: typing || suggestions.recents.filled > 0
    // What it takes: narrower where one half has nothing to say.
    readonly property real wantedWidth: hasPieces && hasList ? 760 : hasPieces ? 488 : 420
    readonly property int rowHeight: 36
    readonly property int headingHeight: Theme.layoutSidebarHeading
    readonly property int columns: 3
    readonly property real listWidth: !hasList ? 0 : !hasPieces ? width : width < 700 ? 240 : 272
    readonly property real pieceWidth: Math.floor((width - listWidth - 1 - 2 * Theme.space2 - 4 - (columns - 1) * Theme.space2) / columns)
    readonly property real pieceHeight: Math.round(pieceWidth / Theme.cardPictureRatio) + Theme.space1
                                        + Theme.type.overline.line + Theme.type.small.line
    readonly property real room: availableHeight - footer.height - 2 * Theme.space1
    // With something typed: four queries, two collections, and the recent ones that fit below.
    readonly property real typedHeight: 6 * rowHeight + 2 * (headingHeight + Theme.space1)
    readonly property int recentFit: Math.max(0, Math.floor((room - (typing ? typedHeight : 0) - headingHeight) / rowHeight))
    readonly property int pieceRows: room >= headingHeight + 2 * pieceHeight + Theme.space2 ? 2 : 1
    readonly property real listHeight: isLink ? headingHeight + rowHeight : typing ? typedHeight + headingHeight + Math.min(recentFit, 3) * rowHeight
                                              : headingHeight + suggestions.recents.filled * rowHeight
    readonly property int shownRows: typing ? pieceRows : Math.min(pieceRows, Math.ceil(suggestions.pieces.filled / columns))
    readonly property real piecesHeight: hasPieces ? headingHeight + shownRows * (pieceHeight + Theme.space2) : 0

    signal opened(int section, string key, string text, bool inNewTab)
    signal searchByImageAsked()

    implicitHeight: Math.min(availableHeight, Math.max(listHeight, piecesHeight) + footer.height + 2 * Theme.space1)

    Accessible.role: Accessible.List
    Accessible.name: qsTranslate("Loomstreet", "Suggestions")

    // How much there is to show depends on the room for it, and the room on what there is: one after the other.
    function tellRoom(): void {
        suggestions.recentRoom = recentFit
        suggestions.pieceRoom = pieceRows * columns
    }
    onRecentFitChanged: later.start()
    onPieceRowsChanged: later.start()
    Component.onCompleted: tellRoom()

    Timer {
        id: later

        interval: 0
        onTriggered: panel.tellRoom()
    }

    FloatingSurface {
        anchors.fill: parent
        radius: Theme.radiusPanel
    }
    // What is beside the rows is still the panel.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onWheel: wheel => { wheel.accepted = true }
    }

    component Heading: Overline {
        height: panel.headingHeight
        leftPadding: Theme.space1_5
        rightPadding: Theme.space1_5
        verticalAlignment: Text.AlignVCenter
        color: Theme.muted
        Accessible.role: Accessible.Heading
    }

    Item {
        id: list

        anchors { left: parent.left; top: parent.top; bottom: footer.top; margins: Theme.space1 }
        width: Math.max(0, panel.listWidth - 2 * Theme.space1)
        visible: panel.hasList
        clip: true

        Heading {
            anchors.left: parent.left
            visible: panel.typing
            words: panel.suggestions.isLink ? qsTranslate("Loomstreet", "Link") : qsTranslate("Loomstreet", "Search")
        }
        Repeater {
            model: panel.suggestions.queries

            SuggestionRow {
                required property int index

                objectName: "query" + index
                anchors.left: parent?.left
                y: panel.headingHeight + index * panel.rowHeight
                width: list.width
                iconName: panel.suggestions.isLink ? "globe" : "magnifyingglass"
                isDefault: index === 0 && panel.suggestions.currentSection === SuggestionsModel.None
                spoken: panel.suggestions.isLink ? qsTranslate("Loomstreet", "Open %1").arg(text)
                                                 : qsTranslate("Loomstreet", "Search for “%1”").arg(text)
                // The first stands for what is typed, of which it shows only the beginning.
                onOpened: inNewTab => panel.opened(SuggestionsModel.Queries, key,
                                                   index === 0 ? panel.suggestions.text.trim() : text, inNewTab)
            }
        }
        Heading {
            anchors.left: parent.left
            y: panel.headingHeight + 4 * panel.rowHeight + Theme.space1
            visible: panel.suggestions.collections.filled > 0
            words: qsTranslate("Loomstreet", "Collections")
        }
        Repeater {
            model: panel.suggestions.collections

            SuggestionRow {
                required property int index

                objectName: "collection" + index
                anchors.left: parent?.left
                y: 2 * panel.headingHeight + 4 * panel.rowHeight + Theme.space1 + index * panel.rowHeight
                width: list.width
                iconName: "square.grid.2x2"
                leads: true
                onOpened: inNewTab => panel.opened(SuggestionsModel.Collections, key, text, inNewTab)
            }
        }
        Heading {
            anchors.left: parent.left
            y: panel.typing ? panel.typedHeight : 0
            visible: panel.suggestions.recents.filled > 0
            words: qsTranslate("Loomstreet", "Recent")
        }
        Repeater {
            model: panel.suggestions.recents

            SuggestionRow {
                required property int index

                objectName: "recent" + index
                anchors.left: parent?.left
                y: (panel.typing ? panel.typedHeight : 0) + panel.headingHeight + index * panel.rowHeight
                width: list.width
                iconName: "clock"
                removable: true
                onOpened: inNewTab => panel.opened(SuggestionsModel.Recents, key, text, inNewTab)
                onRemoved: panel.suggestions.forgetSearch(text)
            }
        }
    }
    Hairline {
        anchors { top: parent.top; bottom: footer.top; left: list.right; leftMargin: Theme.space1 }
        visible: panel.hasPieces && panel.hasList
    }
    Item {
        id: shelf

        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: footer.top }
        anchors { leftMargin: panel.listWidth + 1 + Theme.space2 + 2; rightMargin: Theme.space2 + 2; topMargin: Theme.space1 }
        visible: panel.hasPieces

        Heading {
            anchors.left: parent.left
            leftPadding: 0
            rightPadding: 0
            visible: panel.suggestions.pieces.filled > 0
            words: panel.typing ? qsTranslate("Loomstreet", "Pieces") : qsTranslate("Loomstreet", "Seen and saved")
        }
        Repeater {
            model: panel.suggestions.pieces

            SuggestionPiece {
                required property int index
                readonly property int column: index % panel.columns

                objectName: "suggestedPiece" + index
                x: (LayoutMirroring.enabled ? panel.columns - 1 - column : column) * (panel.pieceWidth + Theme.space2)
                y: panel.headingHeight + Math.floor(index / panel.columns) * (panel.pieceHeight + Theme.space2)
                width: panel.pieceWidth
                onOpened: inNewTab => panel.opened(SuggestionsModel.Pieces, key, text, inNewTab)
            }
        }
        TextLabel {
            anchors.centerIn: parent
            width: Math.min(parent.width, 280)
            horizontalAlignment: Text.AlignHCenter
            visible: panel.typing && !panel.suggestions.isLink && panel.suggestions.isAnswered && panel.suggestions.pieces.filled === 0
            text: qsTranslate("Loomstreet", "No piece comes to mind. Enter searches all of them.")
            type: Theme.type.small
            color: Theme.muted
            wrapMode: Text.Wrap
        }
    }
    Rectangle {
        id: footer

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: 1 }
        height: 44
        radius: Theme.radiusPanel - 1
        color: Theme.sunken

        Rectangle { // the corners above are those of the rows
            anchors { left: parent.left; right: parent.right; top: parent.top }
            height: parent.radius
            color: parent.color
        }
        Hairline { anchors { left: parent.left; right: parent.right; top: parent.top } }
        PushButton {
            id: byImage

            objectName: "searchByImage"
            anchors { left: parent.left; leftMargin: Theme.space1; verticalCenter: parent.verticalCenter }
            kind: "quiet"
            size: "small"
            focusPolicy: Qt.NoFocus
            iconName: "camera"
            text: qsTranslate("Loomstreet", "Search by Image…")
            onClicked: panel.searchByImageAsked()
        }
        Row {
            id: hints

            anchors { right: parent.right; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }
            spacing: Theme.space1
            visible: panel.width >= 520
            opacity: byImage.width + width + 2 * Theme.space3 <= footer.width ? 1 : 0

            component Words: TextLabel {
                anchors.verticalCenter: parent?.verticalCenter
                type: Theme.type.caption
                color: Theme.muted
                Accessible.ignored: true
            }

            KeyHint { anchors.verticalCenter: parent.verticalCenter; text: "↑" }
            KeyHint { anchors.verticalCenter: parent.verticalCenter; text: "↓" }
            Words { text: qsTranslate("Loomstreet", "to choose") }
            KeyHint { anchors.verticalCenter: parent.verticalCenter; text: qsTranslate("Loomstreet", "Esc") }
            Words { text: qsTranslate("Loomstreet", "to close") }
        }
    }
}
