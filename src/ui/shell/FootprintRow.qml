import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// A piece that was looked at: the whole row opens it, its cross takes it out.
FocusScope {
    id: row

    required property int index
    required property var item
    required property string handle
    required property string designer
    required property string title
    required property string price
    required property string formerPrice
    required property var pictures
    required property string label
    required property string reason
    required property bool soldOut
    required property bool unavailable

    readonly property string remark: soldOut ? qsTranslate("Loomstreet", "Sold out") : unavailable ? label : reason

    readonly property var parts: [designer, title, prices.sentence, remark]

    signal opened(int mode)
    signal removeAsked()

    implicitHeight: 96 + 2 * Theme.space2

    Keys.onDeletePressed: removeAsked()

    Pressable {
        id: control

        objectName: "footprint." + row.handle
        anchors { left: parent.left; right: remove.left; rightMargin: Theme.space1; top: parent.top; topMargin: Theme.space2 }
        height: 96
        focus: true
        accessibleName: row.parts.filter(part => part !== "").join(", ")
        onClicked: row.opened(OpenModes.Automatic)

        Accessible.role: Accessible.ListItem

        contentItem: Item {
            Picture {
                id: thumb

                anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
                width: 72
                address: row.pictures[0] ?? ""
                backdrop: Theme.surface
                soldOut: row.soldOut || row.unavailable
            }
            Column {
                anchors { left: thumb.right; leftMargin: Theme.space2; right: parent.right }
                spacing: 2

                TextLabel {
                    width: parent.width
                    text: row.designer
                    type: Theme.type.overline
                    color: Theme.muted
                    Accessible.ignored: true
                }
                TextLabel {
                    width: parent.width
                    text: row.title
                    font.underline: control.hovered
                    Accessible.ignored: true
                }
                PriceLabel {
                    id: prices

                    anchors.left: parent.left
                    price: row.price
                    formerPrice: row.formerPrice
                    room: parent.width
                    Accessible.ignored: true
                }
                TextLabel {
                    width: parent.width
                    text: row.remark
                    type: Theme.type.caption
                    color: row.soldOut || row.unavailable ? Theme.muted : Theme.accent
                    Accessible.ignored: true
                }
            }
        }
        background: Item {
            FocusRing {
                target: control
                controlRadius: Theme.radiusPicture
            }
        }
    }
    IconButton {
        id: remove

        objectName: "remove"
        anchors { right: parent.right; top: control.top }
        iconName: "xmark"
        iconSize: 16
        text: qsTranslate("Loomstreet", "Remove from the list")
        accessibleName: text + ": " + row.title
        onClicked: row.removeAsked()
    }
    Hairline {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
    }
}
