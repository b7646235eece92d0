import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Something the shopper is to be told of a piece: the whole row opens the piece, its cross withdraws it.
FocusScope {
    id: row

    required property int index
    required property bool isRestock
    required property string handle
    required property string title
    required property string designer
    required property string size
    required property string picture
    required property string price
    required property string priceThen
    required property bool isLower
    required property bool isMet

    readonly property string kind: isRestock ? qsTranslate("Loomstreet", "Back in stock") : qsTranslate("Loomstreet", "Price drop")
    readonly property string news: !isMet ? "" : isRestock ? qsTranslate("Loomstreet", "In stock again") : qsTranslate("Loomstreet", "Now lower")
    readonly property string thenText: priceThen === "" || isLower ? ""
                                       : qsTranslate("Loomstreet", "%1 when you asked").arg(Bidi.isolate(priceThen))

    readonly property var parts: [designer, title, size, kind, news, prices.sentence, thenText]

    signal opened(int mode)
    signal removeAsked()

    implicitHeight: Math.max(thumb.height, words.height) + 2 * Theme.space2

    Keys.onDeletePressed: removeAsked()

    Pressable {
        id: control

        objectName: "alert." + row.handle
        anchors { left: parent.left; right: remove.left; rightMargin: Theme.space1; top: parent.top; topMargin: Theme.space2; bottom: parent.bottom; bottomMargin: Theme.space2 }
        focus: true
        accessibleName: row.parts.filter(part => part !== "").join(", ")
        onClicked: row.opened(OpenModes.Automatic)

        Accessible.role: Accessible.ListItem

        contentItem: Item {
            Picture {
                id: thumb

                anchors { left: parent.left; top: parent.top }
                width: 72
                height: 96
                address: row.picture
                soldOut: row.isRestock && !row.isMet
            }
            Column {
                id: words

                anchors { left: thumb.right; leftMargin: Theme.space2; right: parent.right }
                spacing: 2

                TextLabel {
                    width: parent.width
                    visible: text !== ""
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
                TextLabel {
                    width: parent.width
                    visible: text !== ""
                    text: Bidi.isolate(row.size)
                    type: Theme.type.small
                    color: Theme.muted
                    Accessible.ignored: true
                }
                Flow {
                    width: parent.width
                    spacing: Theme.space1

                    PriceLabel {
                        id: prices

                        price: row.price
                        formerPrice: row.isLower ? row.priceThen : ""
                        Accessible.ignored: true
                    }
                    TextLabel {
                        visible: text !== ""
                        text: row.thenText
                        type: Theme.type.small
                        figures: true
                        color: Theme.muted
                        Accessible.ignored: true
                    }
                }
                // What it waits for, and that the wait is over.
                Flow {
                    width: parent.width
                    topPadding: 2
                    spacing: Theme.space1_5

                    LabelRow {
                        iconName: row.isRestock ? "bell" : "chart.down"
                        iconSize: 16
                        type: Theme.type.small
                        color: Theme.muted
                        text: row.kind
                    }
                    LabelRow {
                        visible: row.isMet
                        iconName: "checkmark"
                        iconSize: 16
                        type: Theme.type.label
                        color: Theme.accent
                        text: row.news
                    }
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

        objectName: "removeAlert"
        anchors { right: parent.right; top: control.top }
        iconName: "xmark"
        iconSize: 16
        text: qsTranslate("Loomstreet", "Stop this alert")
        accessibleName: text + ": " + row.title
        onClicked: row.removeAsked()
    }
    Hairline {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
    }
}
