pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// A piece of an order. It leads to its page, as long as the shop has it.
Pressable {
    id: piece

    required property var modelData
    readonly property string note: Bidi.joined([Bidi.isolate(modelData.variant),
                                                modelData.quantity > 1 ? qsTranslate("Loomstreet", "Quantity %L1").arg(modelData.quantity) : ""])

    signal opened(int mode)

    objectName: "piece." + modelData.handle
    implicitHeight: Math.max(96, words.implicitHeight) + 2 * Theme.space2 + Theme.strokeHairline
    locked: modelData.handle === ""
    accessibleName: [modelData.title, note, modelData.price].filter(text => text !== "").join(", ")
    onClicked: opened(OpenModes.Automatic)

    contentItem: Item {
        Picture {
            id: picture

            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            width: 72
            height: 96
            address: piece.modelData.picture
        }
        Column {
            id: words

            anchors { left: picture.right; leftMargin: Theme.space2; right: price.left; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }
            spacing: 2

            TextLabel {
                objectName: "title"
                width: parent.width
                text: piece.modelData.title
                wrapMode: Text.Wrap
                maximumLineCount: 2
                font.underline: piece.hovered && !piece.locked
                Accessible.ignored: true
            }
            TextLabel {
                width: parent.width
                visible: text !== ""
                text: piece.note
                type: Theme.type.small
                color: Theme.muted
                wrapMode: Text.Wrap
                maximumLineCount: 2
                Accessible.ignored: true
            }
        }
        TextLabel {
            id: price

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            text: piece.modelData.price
            type: Theme.type.price
            figures: true
            elide: Text.ElideNone
            Accessible.ignored: true
        }
    }
    background: Item {
        FocusRing {
            target: piece
            controlRadius: Theme.radiusSmall
        }
        Hairline {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        }
    }

    Accessible.role: locked ? Accessible.StaticText : Accessible.Link

    HoverHandler {
        enabled: !piece.locked
        cursorShape: Qt.PointingHandCursor
    }
}
