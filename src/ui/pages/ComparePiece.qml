import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// A piece at the head of its column: its picture, what it is and what it costs, or why it is not here.
FocusScope {
    id: cell

    property var piece
    property WishlistStore wishlist

    readonly property int state: piece?.state ?? CompareModel.Loading
    readonly property bool missing: state === CompareModel.Missing
    readonly property string name: piece?.title || piece?.handle || ""

    signal opened(string handle, var item, int mode)
    signal removed(string handle)
    signal retried()

    implicitHeight: column.height

    Accessible.role: Accessible.Grouping
    Accessible.name: name

    Column {
        id: column

        width: parent.width
        spacing: 2

        Pressable {
            id: picture

            objectName: "piece"
            focus: true
            width: parent.width
            height: Math.round(width / Theme.cardPictureRatio)
            locked: cell.missing
            accessibleName: cell.name
            onClicked: cell.opened(cell.piece.handle, cell.piece.item, OpenModes.Automatic)

            contentItem: Picture {
                address: cell.piece?.picture ?? ""
                soldOut: cell.missing || (cell.piece?.soldOut ?? false)
                backdrop: Theme.paper

                PictureLabel {
                    anchors { left: parent.left; top: parent.top; margins: Theme.space1 }
                    text: cell.missing ? qsTranslate("Loomstreet", "Not available")
                        : cell.piece?.soldOut ? qsTranslate("Loomstreet", "Sold out") : ""
                }
            }
            background: Item {
                FocusRing {
                    target: picture
                    controlRadius: Theme.radiusPicture
                }
            }
            Row {
                z: 1 // the picture comes into being after it
                anchors { right: parent.right; top: parent.top; margins: Theme.space1 }
                spacing: Theme.spaceHalf

                SaveButton {
                    objectName: "save"
                    visible: cell.state === CompareModel.Loaded
                    saved: cell.wishlist !== null && cell.wishlist.revision >= 0 && cell.wishlist.contains(cell.piece?.handle ?? "")
                    onClicked: cell.wishlist.toggle(cell.piece.item)
                }
                RemoveButton {
                    activeFocusOnTab: true
                    text: qsTranslate("Loomstreet", "Remove from the comparison")
                    accessibleName: text + ": " + cell.name
                    onClicked: cell.removed(cell.piece.handle)
                }
            }
        }
        Item { width: 1; height: Theme.cardTextGap }
        TextLabel {
            width: parent.width
            height: type.line
            text: cell.piece?.designer ?? ""
            type: Theme.type.overline
            color: Theme.muted
        }
        TextLabel {
            objectName: "title"
            width: parent.width
            height: type.line
            text: cell.name
        }
        PriceLabel {
            anchors.left: parent.left
            height: Theme.type.price.line
            price: cell.piece?.price ?? ""
            formerPrice: cell.piece?.formerPrice ?? ""
            room: cell.width
        }
        TextLabel {
            objectName: "trouble"
            width: parent.width
            visible: text !== ""
            text: cell.missing ? qsTranslate("Loomstreet", "Not available in your market.")
                               : cell.state === CompareModel.Failed ? cell.piece.errorText : ""
            type: Theme.type.small
            color: Theme.muted
            wrapMode: Text.Wrap
        }
        LinkButton {
            objectName: "retry"
            anchors.left: parent.left
            visible: cell.state === CompareModel.Failed
            text: qsTranslate("Loomstreet", "Try again")
            onClicked: cell.retried()
        }
    }
}
