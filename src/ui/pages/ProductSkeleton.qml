pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// The shape of a product page while it is on its way.
Item {
    id: skeleton

    property bool shown: false
    property int padding: Theme.layoutPagePaddingRegular
    property bool narrow: false

    visible: late.elapsed
    clip: true

    Timer {
        id: late

        property bool elapsed: false

        interval: 150
        running: skeleton.shown && !elapsed
        onTriggered: elapsed = true
    }
    onShownChanged: if (!shown) late.elapsed = false

    Row {
        id: pictures

        readonly property int room: (skeleton.narrow ? skeleton.width : skeleton.width - Theme.layoutBuyBox - skeleton.padding) - 2 * skeleton.padding
        readonly property int large: skeleton.narrow ? room : (room - 64 - 2 * Theme.space1_5) / 2

        anchors { left: parent.left; leftMargin: skeleton.padding; top: parent.top; topMargin: Theme.space2 }
        spacing: Theme.space1_5

        Skeleton {
            width: 64
            height: 86
            visible: !skeleton.narrow
        }
        Repeater {
            model: skeleton.narrow ? 1 : 2

            Skeleton {
                width: pictures.large
                height: width / Theme.cardPictureRatio
            }
        }
    }
    Column {
        anchors { right: parent.right; rightMargin: skeleton.padding; top: parent.top; topMargin: Theme.space2 }
        width: Theme.layoutBuyBox - Theme.space2
        visible: !skeleton.narrow
        spacing: Theme.space2

        Repeater {
            model: [[120, 16], [300, 36], [160, 20], [100, 26], [220, 48], [340, 40], [360, 200]]

            Skeleton {
                required property var modelData

                anchors.left: parent?.left
                width: modelData[0]
                height: modelData[1]
            }
        }
    }
}
