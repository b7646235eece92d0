pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// The shape of a collection while it is on its way; what is known of it is shown.
Item {
    id: skeleton

    property bool shown: false
    property int padding: Theme.layoutPagePaddingRegular
    property string title
    property bool narrow: false
    // Below a head that is there already.
    property bool headless: false
    // A line stands below the name.
    property bool lined: false

    readonly property int room: width - 2 * padding
    readonly property int columns: Math.max(1, Math.floor((room + Theme.cardGapX) / (Theme.cardMinimumWidth + Theme.cardGapX)))
    readonly property int natural: cards.y + cards.height
    readonly property real cardWidth: Math.floor((room + Theme.cardGapX) / columns) - Theme.cardGapX

    clip: true
    visible: late.elapsed

    // What comes at once needs no stand-in.
    Timer {
        id: late

        property bool elapsed: false

        interval: 150
        running: skeleton.shown && !elapsed
        onTriggered: elapsed = true
    }
    onShownChanged: if (!shown) late.elapsed = false

    TextLabel {
        anchors { left: parent.left; leftMargin: skeleton.padding; top: parent.top; topMargin: Theme.space2 }
        visible: text !== "" && !skeleton.headless
        text: skeleton.title
        type: skeleton.narrow ? Theme.type.heading : Theme.type.title
    }
    Skeleton {
        anchors { left: parent.left; leftMargin: skeleton.padding; top: parent.top; topMargin: Theme.space3 }
        width: 240
        height: 40
        visible: skeleton.title === "" && !skeleton.headless
    }
    Grid {
        id: cards

        // As tall as the head that comes in its place.
        readonly property int headHeight: 2 * Theme.space2 + Theme.space1_5 + Theme.targetMinimum
            + (skeleton.narrow ? Theme.type.heading.line : Theme.type.title.line)
            + (skeleton.lined ? Theme.space1_5 + Theme.type.body.line : 0)

        anchors { left: parent.left; leftMargin: skeleton.padding; top: parent.top; topMargin: skeleton.headless ? 0 : headHeight }
        columns: skeleton.columns
        columnSpacing: Theme.cardGapX
        rowSpacing: Theme.cardGapY

        Repeater {
            model: skeleton.visible || skeleton.headless ? skeleton.columns * (skeleton.headless ? 2 : 3) : 0

            CardSkeleton { width: skeleton.cardWidth }
        }
    }
}
