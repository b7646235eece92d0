import QtQuick
import Loomstreet.Theme
import Loomstreet.Components

Column {
    id: root

    property var board: ({ say: (english, arabic) => english })

    spacing: Theme.space1

    Repeater {
        model: ["hero", "title", "heading", "section", "panel", "wordmark", "body", "bodyStrong", "control", "label",
                "small", "caption", "captionStrong", "overline", "badge", "price", "priceLarge", "total"]

        Row {
            id: line

            required property string modelData
            readonly property TypeStyle type: Theme.type[modelData]

            spacing: Theme.space2

            Rectangle {
                width: latin.width
                height: latin.height
                color: Theme.sunken

                TextLabel { id: latin; text: line.modelData + " The quiet 10½"; type: line.type }
            }
            Rectangle {
                width: arabic.width
                height: arabic.height
                color: Theme.sunken

                TextLabel { id: arabic; text: "فستان سابين 248"; type: line.type }
            }
            Rectangle {
                width: han.width
                height: han.height
                color: Theme.sunken

                TextLabel { id: han; text: "東京 Ag"; type: line.type }
            }
            TextLabel { text: "$1,111.80"; figures: true; type: line.type }
        }
    }
}
