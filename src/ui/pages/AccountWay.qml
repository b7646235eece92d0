import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A way from the account to one of its pages.
Pressable {
    id: way

    property string note
    property string iconName

    accessibleName: note === "" ? text : text + ", " + note
    horizontalPadding: Theme.space1
    verticalPadding: Theme.space2

    contentItem: Item {
        implicitHeight: Math.max(disc.height, words.implicitHeight)

        IconDisc {
            id: disc

            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            iconName: way.iconName
            tone: way.hovered || way.down ? "accent" : "plain"
        }
        TitleAndNote {
            id: words

            anchors { left: disc.right; right: arrow.left; verticalCenter: parent.verticalCenter }
            anchors { leftMargin: Theme.space2; rightMargin: Theme.space1 }
            title: way.text
            note: way.note
        }
        Icon {
            id: arrow

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            name: "chevron.right"
            size: 16
            color: way.hovered ? Theme.ink : Theme.muted
        }
    }
    background: Rectangle {
        color: way.down ? Theme.pressed : way.hovered ? Theme.hover : Qt.alpha(Theme.hover, 0)
        radius: Theme.radiusControl

        Hairline {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
            anchors { leftMargin: Theme.space1; rightMargin: Theme.space1 }
            visible: !way.hovered && !way.down
        }
        FocusRing { target: way }
    }

    HoverHandler { cursorShape: Qt.PointingHandCursor }
}
