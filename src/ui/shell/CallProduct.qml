import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// A piece that she shows during a call: what it is and costs now, and the way to its sizes and into the bag.
FocusScope {
    id: row

    property var card: ({}) // a value of the stylist's

    readonly property bool soldOut: card.isSoldOut ?? false
    readonly property bool buyable: (card.isLive ?? false) && !soldOut
    readonly property string soldOutText: qsTranslate("Loomstreet", "Sold out")

    signal opened(int mode)

    Accessible.role: Accessible.ListItem
    Accessible.name: card.title ?? ""

    Pressable {
        id: control

        readonly property color ground: down ? Theme.pressed : hovered ? Theme.hover : Theme.surface

        objectName: "callProduct." + (row.card.handle ?? "")
        anchors.fill: parent
        focus: true
        accessibleName: [row.card.vendor, row.card.title, prices.sentence, row.soldOut ? row.soldOutText : ""]
                        .filter(text => (text ?? "") !== "").join(", ")
        onClicked: row.opened(OpenModes.Automatic)

        background: Rectangle {
            color: control.ground

            Hairline { anchors { left: parent.left; right: parent.right; top: parent.top } }
            FocusRing {
                target: control
                controlRadius: 0
                anchors.margins: 1
            }
        }
        HoverHandler { cursorShape: Qt.PointingHandCursor }
        TapHandler {
            acceptedButtons: Qt.MiddleButton
            onTapped: row.opened(OpenModes.NewTab)
        }
    }
    Picture {
        id: thumb

        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        width: 42
        height: 56
        enabled: false
        address: row.card.image ?? ""
        soldOut: row.soldOut
        backdrop: control.ground
    }
    Column {
        id: words

        anchors { left: thumb.right; leftMargin: Theme.space1_5; right: prices.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
        enabled: false

        TextLabel {
            width: parent.width
            visible: text !== ""
            text: row.card.vendor ?? ""
            type: Theme.type.overline
            color: Theme.muted
            Accessible.ignored: true
        }
        TextLabel {
            objectName: "title"
            width: parent.width
            text: row.card.title ?? ""
            type: Theme.type.small
            Accessible.ignored: true
        }
    }
    // Below one another, so that the title keeps its room.
    Column {
        id: prices

        readonly property string sentence: current.sentence

        anchors { right: buy.left; rightMargin: Theme.spaceHalf; verticalCenter: parent.verticalCenter }
        enabled: false

        PriceLabel {
            id: current

            anchors.right: parent.right
            price: row.card.priceText ?? ""
            formerPrice: row.card.formerPriceText ?? ""
            room: 0
            Accessible.ignored: true
        }
        TextLabel {
            anchors.right: parent.right
            visible: text !== ""
            text: row.soldOut ? row.soldOutText : row.card.formerPriceText ?? ""
            type: Theme.type.caption
            figures: true
            color: Theme.muted
            font.strikeout: !row.soldOut
            Accessible.ignored: true
        }
    }
    // What the catalog does not know cannot be bought; its place stays, so that nothing moves.
    Item {
        id: buy

        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        width: Theme.targetIcon
        height: width

        IconButton {
            objectName: "buy"
            anchors.fill: parent
            visible: row.buyable
            iconName: "bag"
            text: qsTranslate("Loomstreet", "Choose a size and add to cart")
            accessibleName: text + ": " + (row.card.title ?? "")
            onClicked: row.opened(OpenModes.Automatic)
        }
    }
}
