import QtQuick
import Loomstreet.Theme

// A row that opens to show more, as the composition and the care of a piece.
Item {
    id: disclosure

    property string title
    property bool expanded: false
    default property alias content: content.data

    function toggle(): void { expanded = !expanded }

    implicitWidth: 320
    implicitHeight: header.height + (expanded ? content.height + Theme.space2 : 0)

    Pressable {
        id: header

        objectName: "header"
        width: parent.width
        text: disclosure.title
        verticalPadding: Theme.space1
        onClicked: disclosure.toggle()

        contentItem: Item {
            implicitHeight: label.implicitHeight

            TextLabel {
                id: label

                anchors { left: parent.left; right: sign.left; verticalCenter: parent.verticalCenter }
                text: disclosure.title
                type: Theme.type.label
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            Icon {
                id: sign

                anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                name: disclosure.expanded ? "minus" : "plus"
                size: 16
                color: header.hovered ? Theme.ink : Theme.muted
            }
        }
        background: Item {
            implicitHeight: Theme.targetRow

            Hairline { width: parent.width }
            FocusRing {
                target: header
                controlRadius: 0
                anchors.topMargin: 2
                anchors.bottomMargin: 2
            }
        }

        Accessible.description: disclosure.expanded ? qsTranslate("Loomstreet", "Expanded")
                                                    : qsTranslate("Loomstreet", "Collapsed")
    }
    Column {
        id: content

        objectName: "content"
        anchors { left: parent.left; right: parent.right; top: header.bottom }
        visible: disclosure.expanded
        spacing: Theme.space1
    }
}
