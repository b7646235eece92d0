import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// One piece in a grid or a rail. Its height follows its width alone, so that nothing below it ever moves; what
// comes with the pointer or the keyboard lies over the picture.
Item {
    id: card

    property string designer
    property string title
    property string price
    property string formerPrice
    property var pictures: [] // addresses; the second shows under the pointer
    property var dots: [] // colours
    property var dotPictures: [] // addresses of pictures in each colour, where the colours themselves are not known
    property string label
    property string reason
    property var sizes: [] // their texts
    property bool soldOut: false
    property bool previewed: false
    property bool canSave: false
    property bool saved: false
    property color backdrop: Theme.paper

    // It goes by under a pointer that does not mean it.
    property bool passing: false
    // Its picture may be loaded.
    property alias due: picture.due

    readonly property bool hovered: hover.hovered && !passing
    // Decoded, or known never to be.
    readonly property bool pictureSettled: picture.ready || picture.broken || picture.missing
    readonly property bool reached: activeFocus || heart.activeFocus || (bar.item as CardBar)?.reached === true
    readonly property bool lively: hovered || (reached && InputMode.keyboard)
    readonly property int pictureHeight: Math.round(width / Theme.cardPictureRatio)
    readonly property string picturedLabel: soldOut ? qsTranslate("Loomstreet", "Sold out") : label

    readonly property string sentence: {
        let said = designer
        for (const part of [title, prices.sentence, picturedLabel, reason])
            said += part !== "" && said !== "" ? ", " + part : part
        return said
    }

    // With the keys that were held: Ctrl asks for a new tab, as the middle button does.
    signal activated(int modifiers)
    signal openFull()
    signal saveToggled()

    function showSecond(): void {
        if (hovered && pictures.length > 1 && second.status === Loader.Null)
            second.setSource("CardSecond.qml", { card: card })
    }

    implicitWidth: Theme.cardMinimumWidth
    implicitHeight: pictureHeight + Theme.cardTextGap + words.height
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: sentence
    Accessible.focusable: true
    Accessible.onPressAction: activated(Qt.NoModifier)

    Keys.onPressed: event => {
        const presses = [Qt.Key_Return, Qt.Key_Enter, Qt.Key_Space].indexOf(event.key) >= 0
        event.accepted = presses
        if (presses && !event.isAutoRepeat)
            activated(event.modifiers & ~Qt.KeypadModifier)
    }

    // What lies over the picture comes into being when it is first wanted, and stays.
    onHoveredChanged: showSecond()
    // Given another piece, it forgets the second picture of the former.
    onTitleChanged: {
        second.source = ""
        showSecond()
    }
    onLivelyChanged: {
        if (lively && bar.status === Loader.Null)
            bar.setSource("CardBar.qml", { card: card })
    }

    HoverHandler {
        id: hover

        cursorShape: Qt.PointingHandCursor
    }
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.LeftButton | Qt.MiddleButton
        onClicked: mouse => card.activated(mouse.button === Qt.MiddleButton ? Qt.ControlModifier : mouse.modifiers)
    }

    Picture {
        id: picture

        objectName: "picture"
        width: parent.width
        height: card.pictureHeight
        address: card.pictures[0] ?? ""
        soldOut: card.soldOut
        backdrop: card.backdrop

        Loader {
            id: second

            objectName: "second"
            anchors.fill: parent
            enabled: false
        }
        SelectionOutline {
            objectName: "previewed"
            visible: card.previewed
            enabled: false
        }
        FocusRing {
            target: card
            enabled: false
            controlRadius: Theme.radiusPicture
            clearance: card.previewed ? 2 * Theme.strokeSelected : 0
        }
        PictureLabel {
            objectName: "label"
            anchors { left: parent.left; top: parent.top; margins: Theme.space1 }
            enabled: false
            width: Math.min(implicitWidth, parent.width - 2 * Theme.space1 - (heart.visible ? 40 : 0))
            text: card.picturedLabel
        }
        SaveButton {
            id: heart

            objectName: "save"
            anchors { right: parent.right; top: parent.top; margins: Theme.space1 }
            visible: card.canSave
            // A stop for the Tab key only where its card is one.
            focusPolicy: card.activeFocusOnTab ? Qt.StrongFocus : Qt.ClickFocus
            saved: card.saved
            onClicked: card.saveToggled()
        }
        Loader {
            id: bar

            objectName: "bar"
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Theme.space1 }
        }
    }

    Column {
        id: words

        anchors { left: parent.left; right: parent.right; top: picture.bottom; topMargin: Theme.cardTextGap }
        spacing: 1
        // As all that is disabled here it only shows: every step of the wheel would ask each of them whether it was meant.
        enabled: false

        TextLabel {
            objectName: "designer"
            width: parent.width
            height: type.line
            text: card.designer
            type: Theme.type.overline
            color: Theme.muted
            Accessible.ignored: true
        }
        TextLabel {
            objectName: "title"
            width: parent.width
            height: type.line
            text: card.title
            Accessible.ignored: true
        }
        PriceLabel {
            id: prices

            width: parent.width
            height: Theme.type.price.line
            price: card.price
            formerPrice: card.formerPrice
            room: words.width
            Accessible.ignored: true
        }
        // There even when empty: cards of a row are as tall as each other.
        Item {
            width: parent.width
            height: Theme.type.caption.line + 3

            ColourDots {
                id: dots

                anchors.left: parent.left
                anchors.verticalCenter: why.verticalCenter
                colours: card.dots
                pictures: card.dotPictures
                backdrop: card.backdrop
            }
            TextLabel {
                id: why

                objectName: "reason"
                anchors { left: dots.right; right: parent.right; bottom: parent.bottom }
                anchors.leftMargin: dots.width > 0 ? Theme.space1 : 0
                height: type.line
                text: card.reason
                type: Theme.type.caption
                color: Theme.accent
                Accessible.ignored: true
            }
        }
    }
}
