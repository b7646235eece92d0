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

    readonly property int room: width - 2 * padding
    readonly property int columns: Math.max(1, Math.floor((room + Theme.cardGapX) / (Theme.cardMinimumWidth + Theme.cardGapX)))
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
        anchors { left: parent.left; leftMargin: skeleton.padding; top: parent.top; topMargin: Theme.space3 }
        visible: text !== ""
        text: skeleton.title
        type: skeleton.narrow ? Theme.type.heading : Theme.type.title
    }
    Skeleton {
        anchors { left: parent.left; leftMargin: skeleton.padding; top: parent.top; topMargin: Theme.space3 }
        width: 240
        height: 40
        visible: skeleton.title === ""
    }
    Grid {
        anchors { left: parent.left; leftMargin: skeleton.padding; top: parent.top; topMargin: Theme.space6 + Theme.type.title.line }
        columns: skeleton.columns
        columnSpacing: Theme.cardGapX
        rowSpacing: Theme.cardGapY

        Repeater {
            model: skeleton.visible ? skeleton.columns * 3 : 0

            CardSkeleton { width: skeleton.cardWidth }
        }
    }
}
