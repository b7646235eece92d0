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

    Item {
        id: pictures

        x: skeleton.padding
        y: Theme.space2
        width: (skeleton.narrow ? skeleton.width : skeleton.width - Theme.layoutBuyBox - skeleton.padding) - 2 * skeleton.padding

        Skeleton {
            x: 0
            width: 64
            height: 86
            visible: !skeleton.narrow
        }
        Repeater {
            model: skeleton.narrow ? 1 : 2

            Skeleton {
                required property int index
                readonly property real room: pictures.width - (skeleton.narrow ? 0 : 64 + Theme.space1_5)

                x: skeleton.narrow ? 0 : 64 + Theme.space1_5 + index * (width + Theme.space1_5)
                width: skeleton.narrow ? room : (room - Theme.space1_5) / 2
                height: width / Theme.cardPictureRatio
            }
        }
    }
    Column {
        x: skeleton.width - Theme.layoutBuyBox
        y: Theme.space2
        visible: !skeleton.narrow
        spacing: Theme.space2

        Repeater {
            model: [{ w: 120, h: 16 }, { w: 300, h: 36 }, { w: 160, h: 20 }, { w: 100, h: 26 }, { w: 220, h: 48 }, { w: 340, h: 40 }, { w: 360, h: 200 }]

            Skeleton {
                required property var modelData

                width: modelData.w
                height: modelData.h
            }
        }
    }
}
