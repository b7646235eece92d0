pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// A place in a look: the piece that fills it, its sizes, and what else could be done with it. Below each other, pieces
// are rows.
FocusScope {
    id: cell

    required property int index
    required property string handle
    required property int phase
    required property string errorText
    required property var item
    required property string title
    required property string designer
    required property string price
    required property string formerPrice
    required property string picture
    required property string colour
    required property var sizes
    required property string chosenSize
    required property string recommendedSize
    required property bool lacksSize
    required property bool isLeftOut
    required property bool isInCart
    required property bool canSwap
    required property var alternatives
    required property bool isSeeking
    required property string seekErrorText

    property MiraLookModel look
    property bool stacked: false

    readonly property bool isLoading: phase === MiraLookModel.Loading
    readonly property bool isReady: phase === MiraLookModel.Ready
    readonly property bool soldOut: phase === MiraLookModel.SoldOut
    readonly property bool isGone: phase === MiraLookModel.Missing
    readonly property real dimming: isLeftOut ? Theme.alphaDisabled : 1

    signal opened(string handle, var item)

    objectName: "lookPiece." + index
    implicitHeight: Math.max(stacked ? frame.height : 0, words.y + words.height)

    Accessible.role: Accessible.Grouping
    Accessible.name: title !== "" ? title : handle

    Pressable {
        id: frame

        objectName: "openPiece"
        anchors { left: parent.left; top: parent.top }
        width: cell.stacked ? 96 : cell.width
        height: Math.round(width / Theme.cardPictureRatio)
        opacity: cell.dimming
        locked: cell.item === undefined || cell.isGone
        accessibleName: qsTranslate("Loomstreet", "Open %1").arg(cell.title)
        onClicked: cell.opened(cell.handle, cell.item)

        contentItem: Picture {
            address: cell.picture
            soldOut: cell.soldOut || cell.isGone
            backdrop: Theme.surface

            PictureLabel {
                anchors { left: parent.left; top: parent.top; margins: cell.stacked ? Theme.spaceHalf : Theme.space1 }
                text: cell.isGone ? qsTranslate("Loomstreet", "Not available") : cell.soldOut ? qsTranslate("Loomstreet", "Sold out") : ""
            }
        }
        background: Item {
            FocusRing {
                target: frame
                controlRadius: Theme.radiusPicture
            }
        }
        HoverHandler {
            enabled: !frame.locked
            cursorShape: Qt.PointingHandCursor
        }
    }
    Column {
        id: words

        anchors { left: cell.stacked ? frame.right : parent.left; leftMargin: cell.stacked ? Theme.space2 : 0; right: parent.right }
        anchors { top: cell.stacked ? parent.top : frame.bottom; topMargin: cell.stacked ? 0 : Theme.cardTextGap }
        spacing: Theme.space1

        Item {
            width: parent.width
            height: facts.height

            Column {
                id: facts

                width: parent.width
                opacity: cell.dimming

                TextLabel {
                    width: parent.width
                    height: type.line
                    text: cell.designer
                    type: Theme.type.overline
                    color: Theme.muted
                }
                TextLabel {
                    objectName: "title"
                    width: parent.width
                    height: type.line
                    text: cell.title
                }
                Item {
                    width: parent.width
                    height: Theme.type.price.line

                    PriceLabel {
                        id: prices

                        objectName: "price"
                        anchors.left: parent.left
                        visible: cell.isReady || cell.isLoading
                        price: cell.price
                        formerPrice: cell.formerPrice
                        room: parent.width
                    }
                    TextLabel {
                        objectName: "colour"
                        anchors { left: prices.right; leftMargin: Theme.space1; right: parent.right; verticalCenter: parent.verticalCenter }
                        visible: cell.isReady
                        text: cell.colour
                        type: Theme.type.small
                        color: Theme.muted
                        horizontalAlignment: cell.stacked ? Text.AlignLeft : Text.AlignRight
                    }
                }
            }
            Column {
                visible: cell.isLoading && cell.title === "" && !patience.running
                topPadding: 2
                spacing: 6

                Skeleton { width: 88; height: 12 }
                Skeleton { width: 168; height: 16 }
                Skeleton { width: 64; height: 14 }
            }
        }
        // As high while the piece is on its way, so that nothing moves when it has come.
        Item {
            width: parent.width
            height: Math.max(sizeColumn.visible ? sizeColumn.height : 0, cell.isLoading ? Theme.type.label.line + Theme.spaceHalf + Theme.targetControl : 0)

            Column {
                id: sizeColumn

                width: parent.width
                visible: cell.isReady && cell.sizes.length > 0
                opacity: cell.dimming
                enabled: !cell.isLeftOut
                spacing: Theme.spaceHalf

                Item {
                    id: sizeWords

                    // Beside each other one of them would be cut short.
                    readonly property bool crowded: recommended.visible && label.width + Theme.space1 + recommended.implicitWidth > width

                    width: parent.width
                    height: label.height + (crowded ? recommended.height : 0)

                    TextLabel {
                        id: label

                        objectName: "sizeLabel"
                        anchors.left: parent.left
                        text: cell.lacksSize ? qsTranslate("Loomstreet", "Choose a size") : qsTranslate("Loomstreet", "Size")
                        type: Theme.type.label
                        color: cell.lacksSize ? Theme.danger : Theme.ink
                    }
                    TextLabel {
                        id: recommended

                        objectName: "recommended"
                        anchors { left: sizeWords.crowded ? parent.left : label.right; leftMargin: sizeWords.crowded ? 0 : Theme.space1; right: parent.right }
                        anchors { baseline: sizeWords.crowded ? undefined : label.baseline; bottom: sizeWords.crowded ? parent.bottom : undefined }
                        visible: cell.recommendedSize !== ""
                        text: qsTranslate("Loomstreet", "Recommended for you: %1").arg(Bidi.isolate(cell.recommendedSize))
                        type: Theme.type.caption
                        color: Theme.accent
                    }
                }
                Flow {
                    width: parent.width
                    spacing: Theme.spaceHalf

                    // By number: a size keeps its button, and with it the focus, while another is chosen.
                    Repeater {
                        model: cell.sizes.length

                        SizeButton {
                            id: size

                            required property int index
                            readonly property var value: cell.sizes[index] ?? ({ text: "", isAvailable: true })

                            objectName: "size." + text
                            text: value.text
                            selected: text !== "" && text === cell.chosenSize
                            soldOut: !value.isAvailable
                            recommended: text !== "" && text === cell.recommendedSize
                            onClicked: cell.look.chooseSize(cell.index, text)
                        }
                    }
                }
            }
        }
        TextLabel {
            objectName: "trouble"
            width: parent.width
            visible: text !== ""
            text: cell.isGone ? qsTranslate("Loomstreet", "Not available in your market.") : cell.errorText
            type: Theme.type.small
            color: Theme.muted
            wrapMode: Text.Wrap
            Accessible.role: Accessible.AlertMessage
        }
        Flow {
            width: parent.width
            spacing: Theme.space2

            LinkButton {
                objectName: "retryPiece"
                visible: cell.phase === MiraLookModel.Failed
                text: qsTranslate("Loomstreet", "Try again")
                onClicked: cell.look.retry()
            }
            LabelRow {
                height: Theme.targetMinimum
                visible: cell.isInCart
                centred: false
                iconName: "checkmark"
                iconSize: 16
                color: Theme.success
                type: Theme.type.label
                text: qsTranslate("Loomstreet", "In your cart")

                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            LinkButton {
                id: swapLink

                objectName: "swap"
                visible: cell.canSwap && !cell.isLeftOut && !cell.isInCart
                text: qsTranslate("Loomstreet", "Swap")
                accessibleName: text + ": " + cell.title
                onClicked: swap.toggle()

                Loader {
                    id: swap

                    readonly property var made: item

                    function toggle(): void {
                        if (status === Loader.Null)
                            setSource("LookSwap.qml", { cell: cell })
                        if (made.visible) {
                            made.close()
                            return
                        }
                        cell.look.seekAlternatives(cell.index)
                        rises = swapLink.mapToItem(null, 0, 0).y > 440
                        made.open()
                    }
                    property bool rises: false // there is room above

                    x: cell.LayoutMirroring.enabled && made ? swapLink.width - made.width : 0
                    y: rises && made ? -made.height - Theme.spaceHalf : swapLink.height
                }
            }
            LinkButton {
                objectName: "leaveOut"
                visible: !cell.isInCart && !cell.isLoading
                text: cell.isLeftOut ? qsTranslate("Loomstreet", "Put back") : qsTranslate("Loomstreet", "Leave out")
                accessibleName: text + ": " + cell.title
                onClicked: cell.look.setLeftOut(cell.index, !cell.isLeftOut)
            }
        }
    }
    // Waits, so that what comes at once shows no wait.
    Timer {
        id: patience

        interval: 150
        running: cell.isLoading
    }
}
