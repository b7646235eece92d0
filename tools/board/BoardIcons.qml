import QtQuick
import Loomstreet.Theme
import Loomstreet.Components

Flow {
    id: root

    property var board: ({ say: (english, arabic) => english })

    spacing: Theme.space1

    Repeater {
        model: ["house", "clock", "figure.stand.dress", "figure.stand", "crown", "handbag", "eyeglasses", "tag",
                "signature", "star", "person.2", "sparkles", "bag", "heart", "square.grid.2x2", "hanger", "calendar",
                "shippingbox", "bell", "person.crop.circle", "heart.fill", "star.fill", "sidebar", "chevron.left",
                "chevron.right", "chevron.up", "chevron.down", "arrow.clockwise", "magnifyingglass", "globe", "plus",
                "minus", "xmark", "checkmark", "expand", "open.tab", "menu", "ellipsis", "warning", "info",
                "wifi.slash", "truck", "return", "shield", "camera", "gear", "sun", "moon", "ruler", "lock",
                "window.minimize", "window.maximize", "window.restore", "pin", "photo", "browser", "arrow.down",
                "arrow.up", "play", "pause", "download", "trash", "sliders", "footprints", "microphone", "phone",
                "headphones", "checkmark.seal", "cloud", "chart.down", "eye", "eye.slash", "speaker"]

        Column {
            required property string modelData

            width: 108
            spacing: 4

            Row {
                spacing: 10

                Icon { name: modelData; size: 16; anchors.verticalCenter: parent.verticalCenter }
                Icon { name: modelData; anchors.verticalCenter: parent.verticalCenter }
                Icon { name: modelData; size: 40; color: Theme.accent }
            }
            TextLabel { text: modelData; type: Theme.type.badge; color: Theme.muted; width: parent.width }
        }
    }
}
