pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The head of a list: its name, how many pieces it has, collections that belong to it, its filters and its order.
Item {
    id: header

    property ProductListing listing
    property string title
    property string note
    // A sentence about what is listed. Its line is there also while it is empty, so that nothing moves when it comes or goes.
    property string summary
    property bool lined: false
    property var collections: []
    property bool narrow: false
    property alias filtersOpen: bar.filtersOpen

    readonly property TypeStyle kind: narrow ? Theme.type.heading : Theme.type.title

    signal filtersAsked()
    signal collectionOpened(string handle, string title)

    function focusFilters(): void { bar.focusFilters() }

    implicitHeight: column.y + column.implicitHeight + Theme.space2

    TextMetrics {
        id: words

        font.family: header.kind.family
        font.pixelSize: header.kind.size
        text: header.title
    }
    FontMetrics {
        id: letters

        font.family: Theme.type.label.family
        font.pixelSize: Theme.type.label.size
    }
    Column {
        id: column

        y: Theme.space2
        width: parent.width
        spacing: Theme.space1_5

        Item {
            width: parent.width
            height: name.implicitHeight

            SectionHeader {
                id: name

                anchors.left: parent.left
                width: parent.width - (links.count > 0 ? links.width + Theme.space3 : 0)
                type: header.kind
                title: header.title
                note: header.note
            }
            // Beside the name, so that nothing moves when they come, and only as many as leave it on one line.
            Row {
                id: links

                readonly property int count: {
                    let room = parent.width - words.advanceWidth - Theme.space3
                    let count = 0
                    for (const collection of header.collections) {
                        room -= Theme.space8 + Math.max(letters.advanceWidth(collection.title),
                                                        collection.title.length * Theme.type.label.size * 0.62)
                        if (room < 0)
                            break
                        ++count
                    }
                    return count
                }

                anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                spacing: Theme.space1

                Repeater {
                    model: header.collections.slice(0, links.count)

                    Chip {
                        required property var modelData

                        objectName: "collection." + modelData.handle
                        iconName: "square.grid.2x2"
                        text: modelData.title
                        accessibleName: qsTranslate("Loomstreet", "Collection: %1").arg(text)
                        onClicked: header.collectionOpened(modelData.handle, modelData.title)
                        Accessible.role: Accessible.Link
                    }
                }
            }
        }
        TextLabel {
            objectName: "summary"
            width: parent.width // a column passes over what has none
            height: type.line
            visible: header.lined
            text: header.summary
            color: Theme.muted
            Accessible.ignored: text === ""
        }
        FilterBar {
            id: bar

            width: parent.width
            listing: header.listing
            narrow: header.narrow
            onFiltersAsked: header.filtersAsked()
        }
    }
}
