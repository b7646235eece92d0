pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A package of an order, and the last that was heard of it.
Pressable {
    id: row

    required property var modelData
    readonly property string name: Bidi.joined([modelData.carrier, Bidi.isolate(modelData.number)])
    readonly property string latest: {
        const event = modelData.events[0]
        // What says the same once more is left out.
        return !event ? "" : event.text === modelData.status ? event.when : Bidi.joined([event.text, event.when])
    }

    objectName: "package." + modelData.number
    implicitHeight: words.implicitHeight + 2 * Theme.space2 + Theme.strokeHairline
    accessibleName: [modelData.status, modelData.carrier, modelData.number, latest].filter(text => text !== "").join(", ")

    contentItem: Item {
        IconDisc {
            id: disc

            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            iconName: "shippingbox"
            tone: row.modelData.tone
        }
        Column {
            id: words

            anchors { left: disc.right; leftMargin: Theme.space2; right: chevron.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
            spacing: 2

            TextLabel {
                width: parent.width
                text: Bidi.joined([row.modelData.status, row.modelData.expected === "" ? ""
                                                         : qsTranslate("Loomstreet", "Expected %1").arg(row.modelData.expected)])
                type: Theme.type.label
                wrapMode: Text.Wrap
                font.underline: row.hovered
                Accessible.ignored: true
            }
            TextLabel {
                width: parent.width
                visible: text !== ""
                text: row.latest
                type: Theme.type.small
                wrapMode: Text.Wrap
                maximumLineCount: 2
                Accessible.ignored: true
            }
            TextLabel {
                width: parent.width
                text: row.name
                type: Theme.type.small
                figures: true
                color: Theme.muted
                Accessible.ignored: true
            }
        }
        Icon {
            id: chevron

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            name: "chevron.right"
            size: 16
            color: Theme.muted
        }
    }
    background: Item {
        FocusRing {
            target: row
            controlRadius: Theme.radiusSmall
        }
        Hairline {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        }
    }

    Accessible.role: Accessible.Link

    HoverHandler { cursorShape: Qt.PointingHandCursor }
}
