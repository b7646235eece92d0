pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The pieces of a list that the shopper keeps: a grid from which some can be chosen, to be compared or taken out.
PageBase {
    id: page

    required property KeptPieces kept
    property bool sortable: false
    property bool removable: false // a piece by itself, beside its heart
    property string clearText // the way to take out all of them
    property string emptyIcon
    property string emptyTitle
    property string emptySentence
    property alias links: links.data // further ways on, in the head

    readonly property KeptPiecesModel list: context.model
    readonly property bool empty: kept.isLoaded && kept.count === 0
    readonly property int fewest: 2
    readonly property int most: 4
    property bool picking: false
    property var picked: [] // handles

    settled: grid.settled || empty
    flickable: grid.flickable

    function takeFocus(): void { (empty ? nothing : grid).forceActiveFocus() }
    function reload(): void { list.reload() }
    function look(): void {
        if (shown && list && grid.count > 0)
            list.look(grid.firstSeen, grid.lastSeen)
    }
    function endPicking(): void {
        picking = false
        picked = []
    }
    function togglePick(handle: string): void {
        picked = picked.indexOf(handle) >= 0 ? picked.filter(other => other !== handle) : picked.concat([handle])
    }

    onShownChanged: looking.restart()
    onScrollYChanged: looking.start()
    onEmptyChanged: if (empty) endPicking()
    Keys.onEscapePressed: event => {
        event.accepted = picking
        endPicking()
    }

    // Prices are asked for where the shopper stays for a moment.
    Timer {
        id: looking

        interval: 120
        onTriggered: page.look()
    }
    Connections {
        target: page.kept
        function onChanged(): void {
            page.picked = page.picked.filter(handle => page.kept.contains(handle))
            looking.restart()
        }
    }
    Connections {
        target: page.app.market
        function onRevisionChanged(): void { looking.restart() }
    }

    OfflineStrip {
        id: strip

        objectName: "strip"
        offline: page.list?.isOffline ?? false
        canRetry: true
        onRetry: page.list.reload()
        width: parent.width
        visible: !page.empty && text !== ""
        text: page.list ? page.list.errorText : ""
    }
    ProductGrid {
        id: grid

        objectName: "grid"
        anchors { left: parent.left; right: parent.right; top: strip.visible ? strip.bottom : parent.top; bottom: parent.bottom }
        visible: !page.empty
        focus: true
        padding: page.padding
        products: page.list ? page.list.pieces : null
        wishlist: page.app.wishlist
        previewed: page.previewed
        picking: page.picking
        picked: page.picked
        removable: page.removable
        onWidthChanged: looking.start()
        onCountChanged: looking.start()
        onOpened: (handle, item, mode) => page.router.openPiece(handle, item, mode)
        onPickToggled: handle => page.togglePick(handle)
        onRemoveAsked: handle => page.kept.remove(handle)

        head: ListHeader {
            width: grid.room
            narrow: page.narrow
            title: page.title
            note: page.picking
                  ? page.picked.length > page.most
                    ? qsTranslate("Loomstreet", "%Ln chosen, %L1 can be compared", "", page.picked.length).arg(page.most)
                    : qsTranslate("Loomstreet", "%Ln chosen", "", page.picked.length)
                  : qsTranslate("Loomstreet", "%Ln pieces", "", page.kept.count)

            PushButton {
                objectName: "compare"
                visible: page.picking
                size: "small"
                kind: "primary"
                text: qsTranslate("Loomstreet", "Compare")
                enabled: page.picked.length >= page.fewest && page.picked.length <= page.most
                Accessible.description: qsTranslate("Loomstreet", "Choose two to four pieces")
                onClicked: {
                    const handles = page.picked
                    page.endPicking()
                    page.router.openCompare(handles)
                }
            }
            PushButton {
                objectName: "removePicked"
                visible: page.picking
                size: "small"
                text: qsTranslate("Loomstreet", "Remove")
                enabled: page.picked.length > 0
                onClicked: {
                    const handles = page.picked
                    page.endPicking()
                    page.kept.removeAll(handles)
                }
            }
            PushButton {
                objectName: "endPicking"
                visible: page.picking
                size: "small"
                kind: "quiet"
                text: qsTranslate("Loomstreet", "Done")
                onClicked: page.endPicking()
            }
            Row {
                id: links

                visible: !page.picking
                spacing: Theme.space1
            }
            PushButton {
                objectName: "pick"
                visible: !page.picking
                size: "small"
                kind: "quiet"
                iconName: "checkmark"
                text: qsTranslate("Loomstreet", "Select")
                onClicked: page.picking = true
            }
            PushButton {
                objectName: "clear"
                visible: !page.picking && text !== ""
                size: "small"
                kind: "quiet"
                iconName: "trash"
                text: page.clearText
                onClicked: page.kept.clear()
            }
            SortButton {
                visible: page.sortable && !page.picking
                labels: [qsTranslate("Loomstreet", "Newest first"), qsTranslate("Loomstreet", "Price: low to high"),
                         qsTranslate("Loomstreet", "Price: high to low")]
                current: page.list ? page.list.sort : 0
                onChosen: index => { page.list.sort = index }
            }
        }
    }
    EmptyState {
        id: nothing

        objectName: "empty"
        anchors.centerIn: parent
        visible: page.empty
        width: Math.min(parent.width, 480)
        iconName: page.emptyIcon
        title: page.emptyTitle
        sentence: page.emptySentence

        PushButton {
            objectName: "newIn"
            focus: true
            text: qsTranslate("Loomstreet", "New In")
            onClicked: page.router.selectItem(1)
        }
        PushButton {
            objectName: "explore"
            text: qsTranslate("Loomstreet", "Explore")
            onClicked: page.router.selectItem(0)
        }
    }
}
