pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Collections as tiles, as many columns as fit.
Grid {
    id: tiles

    property CollectionTilesModel collections
    // What to show while they are on their way.
    property int expected: 6
    property int decoded: 0

    readonly property bool waiting: collections ? !collections.isLoaded && (collections.isLoading || collections.errorText === "") : true
    readonly property real tileWidth: Math.floor((width + Theme.cardGapX) / columns) - Theme.cardGapX

    signal opened(string handle, string title)

    columns: Math.max(2, Math.floor((width + Theme.cardGapX) / (Theme.cardMinimumWidth + 24 + Theme.cardGapX)))
    columnSpacing: Theme.cardGapX
    rowSpacing: Theme.cardGapY

    Repeater {
        model: tiles.collections

        CollectionTile {
            required property string handle
            required property string title
            required picture

            objectName: "tile." + handle
            width: tiles.tileWidth
            text: title
            onClicked: tiles.opened(handle, title)
            onPictureSettledChanged: if (pictureSettled) ++tiles.decoded
        }
    }
    Repeater {
        model: tiles.waiting ? tiles.expected : 0

        Skeleton {
            width: tiles.tileWidth
            height: Math.round(width / Theme.cardCollectionTileRatio)
        }
    }
}
