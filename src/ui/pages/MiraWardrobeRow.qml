import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A piece of the bag or of the wishlist, chosen or not.
Pressable {
    id: row

    required property string handle
    required property string title
    required property string image
    required property string source
    required property string slotLabel
    required property bool isPicked

    readonly property color ground: down ? Theme.pressed : hovered ? Theme.hover : Theme.surface
    readonly property string where: source === "cart" ? qsTranslate("Loomstreet", "In your bag")
                                                      : qsTranslate("Loomstreet", "On your wishlist")

    objectName: "piece." + handle
    text: title
    accessibleName: title + ", " + slotLabel + ", " + where
    horizontalPadding: Theme.space1
    verticalPadding: Theme.space1

    contentItem: Item {
        implicitHeight: Math.max(thumb.height, words.height)

        Picture {
            id: thumb

            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            width: 48
            height: 64
            address: row.image
            backdrop: row.ground
        }
        Column {
            id: words

            anchors { left: thumb.right; leftMargin: Theme.space1_5; right: mark.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }

            TextLabel {
                width: parent.width
                text: row.title
                Accessible.ignored: true
            }
            TextLabel {
                width: parent.width
                text: row.slotLabel + "  ·  " + row.where
                type: Theme.type.small
                color: Theme.muted
                Accessible.ignored: true
            }
        }
        PickMark {
            id: mark

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            picked: row.isPicked
        }
    }
    background: Rectangle {
        radius: Theme.radiusControl
        color: row.ground

        FocusRing { target: row }
    }

    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: isPicked
    Accessible.onToggleAction: row.press()
}
