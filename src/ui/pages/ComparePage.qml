pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Two to four pieces side by side, in rows that can be read across. Where they do not fit they scroll sideways.
PageBase {
    id: page

    readonly property CompareModel compare: context.model
    readonly property var columns: compare ? compare.columns : []
    readonly property int count: compare ? compare.count : 0
    readonly property bool full: compare ? compare.isFull : true
    readonly property int places: count + (full ? 0 : 1)
    readonly property int gap: Theme.space3
    readonly property int columnWidth: Math.max(208, Math.min(272, Math.floor((width - 2 * padding - (places - 1) * gap) / Math.max(1, places))))
    readonly property int tableWidth: count * columnWidth + Math.max(0, count - 1) * gap
    property bool waiting: true

    title: qsTranslate("Loomstreet", "Compare")
    settled: compare !== null
    flickable: flick

    function takeFocus(): void { flick.forceActiveFocus() }
    function reload(): void { compare.reload() }

    Connections {
        target: page.compare
        function onHandlesChanged(): void {
            page.router.setCompared(page.context.pageID, page.compare.handles)
            keepingFocus.restart()
        }
    }
    // What had the focus may be gone with its piece, or have become one.
    Timer {
        id: keepingFocus

        interval: 0
        onTriggered: {
            if (page.Window.activeFocusItem === page)
                (heads.itemAt(heads.count - 1) ?? flick).forceActiveFocus(Qt.TabFocusReason)
        }
    }
    Flickable {
        id: flick

        // Where it comes to an end on the right, which is where it begins from right to left.
        readonly property real end: contentWidth - width
        property real formerEnd: 0

        objectName: "flick"
        onEndChanged: {
            if (LayoutMirroring.enabled)
                contentX = Math.max(0, Math.min(contentX + end - formerEnd, end))
            formerEnd = end
        }
        anchors.fill: parent
        contentWidth: Math.max(width, page.places * page.columnWidth + (page.places - 1) * page.gap + 2 * page.padding)
        contentHeight: table.height + Theme.space8
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar {}
        ScrollBar.horizontal: ScrollBar {}
        Keys.onLeftPressed: contentX = Math.max(0, contentX - page.columnWidth / 2)
        Keys.onRightPressed: contentX = Math.min(contentWidth - width, contentX + page.columnWidth / 2)

        FocusFollower { flickable: flick }

        ListHeader {
            id: head

            anchors { left: parent.left; leftMargin: page.padding }
            width: flick.width - 2 * page.padding
            narrow: page.narrow
            title: page.title
            note: qsTranslate("Loomstreet", "%Ln pieces", "", page.count)
        }
        Column {
            id: table

            anchors { left: parent.left; leftMargin: page.padding; top: head.bottom }
            width: page.tableWidth
            spacing: Theme.space3

            Row {
                id: pieces

                spacing: page.gap

                Repeater {
                    id: heads

                    model: page.count

                    ComparePiece {
                        required property int index

                        width: page.columnWidth
                        piece: page.columns[index]
                        wishlist: page.app.wishlist
                        onOpened: (handle, item, mode) => page.router.openPiece(handle, item, mode)
                        onRemoved: handle => page.compare.remove(handle)
                        onRetried: page.compare.retry()
                    }
                }
            }
            CompareRow {
                title: qsTranslate("Loomstreet", "Sizes")
                compare: page.compare
                columnWidth: page.columnWidth
                gap: page.gap
                cellSource: "CompareSizes.qml"
                visible: page.columns.some(piece => piece.sizes.length > 0)
            }
            CompareRow {
                title: qsTranslate("Loomstreet", "Composition")
                compare: page.compare
                columnWidth: page.columnWidth
                gap: page.gap
                texts: page.columns.map(piece => piece.composition.join("\n"))
                visible: page.columns.some(piece => piece.composition.length > 0)
            }
            Repeater {
                model: page.compare ? page.compare.specs : []

                CompareRow {
                    required property var modelData

                    title: modelData.key
                    compare: page.compare
                    columnWidth: page.columnWidth
                    gap: page.gap
                    texts: modelData.values
                }
            }
        }
        CompareAdd {
            objectName: "add"
            anchors { left: table.right; leftMargin: page.count > 0 ? page.gap : 0; top: table.top }
            visible: !page.full
            width: page.columnWidth
            compare: page.compare
            alone: page.count < 2
            onWishlistAsked: page.router.openWishlist()
        }
    }
}
