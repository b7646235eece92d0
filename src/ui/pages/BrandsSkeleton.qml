pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// The shape of the designers' index while it is on its way.
Item {
    id: skeleton

    property int padding: Theme.layoutPagePaddingRegular
    property bool narrow: false
    property bool shown: false

    clip: true
    visible: late.elapsed && shown

    // What comes at once needs no stand-in.
    Timer {
        id: late

        property bool elapsed: false

        interval: 150
        running: skeleton.shown && !elapsed
        onTriggered: elapsed = true
    }

    Column {
        id: sections

        anchors { left: parent.left; right: parent.right; leftMargin: skeleton.padding; rightMargin: skeleton.padding }
        y: Theme.space3
        spacing: Theme.space4

        Repeater {
            model: skeleton.visible ? 8 : 0

            Row {
                id: row

                required property int index

                spacing: (skeleton.narrow ? 48 : 96) - 24

                Skeleton { width: 24; height: 28 }
                Row {
                    spacing: Theme.space8

                    Repeater {
                        model: 2 + row.index % 2

                        Skeleton { width: 120 + (row.index * 37) % 60; height: 18 }
                    }
                }
            }
        }
    }
}
