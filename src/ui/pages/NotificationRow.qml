import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// One piece of news: what it is about in an icon or a picture, its two lines and when it came. A dot and a bold title
// say that it was not read.
Pressable {
    id: row

    property string title
    property string body
    property string symbol
    property string picture
    property string date
    property bool isUnread: false
    property int inset: Theme.space3

    readonly property var parts: [isUnread ? qsTranslate("Loomstreet", "Unread") : "", title, body, date]

    accessibleName: parts.filter(part => part !== "").join(", ")
    Accessible.role: Accessible.ListItem

    contentItem: Item {
        implicitHeight: Math.max(36, words.implicitHeight) + 2 * Theme.space1_5

        Rectangle {
            anchors { left: parent.left; leftMargin: Math.round((row.inset - width) / 2); verticalCenter: disc.verticalCenter }
            width: 6
            height: width
            radius: width / 2
            color: Theme.accent
            visible: row.isUnread
        }
        Item {
            id: disc

            anchors { left: parent.left; leftMargin: row.inset; top: parent.top; topMargin: Theme.space1_5 }
            width: 36
            height: row.picture !== "" ? 48 : 36

            IconDisc {
                visible: row.picture === ""
                iconName: row.symbol
            }
            Picture {
                anchors.fill: parent
                visible: row.picture !== ""
                address: row.picture
            }
        }
        Column {
            id: words

            anchors { left: disc.right; leftMargin: Theme.space1_5; right: parent.right; rightMargin: row.inset }
            y: Theme.space1_5

            Item {
                width: parent.width
                height: Math.max(heading.implicitHeight, when.implicitHeight)

                TextLabel {
                    id: heading

                    objectName: "title"
                    anchors { left: parent.left; right: when.left; rightMargin: Theme.space1_5 }
                    text: row.title
                    type: row.isUnread ? Theme.type.bodyStrong : Theme.type.body
                    wrapMode: Text.Wrap
                    maximumLineCount: 2
                    Accessible.ignored: true
                }
                TextLabel {
                    id: when

                    anchors { right: parent.right; baseline: heading.baseline }
                    text: row.date
                    type: Theme.type.small
                    figures: true
                    color: Theme.muted
                    Accessible.ignored: true
                }
            }
            TextLabel {
                objectName: "body"
                width: parent.width
                visible: text !== ""
                text: row.body
                type: Theme.type.small
                color: Theme.muted
                wrapMode: Text.Wrap
                maximumLineCount: 3
                Accessible.ignored: true
            }
        }
    }
    background: Rectangle {
        color: row.down ? Theme.pressed : row.hovered ? Theme.hover : "transparent"

        FocusRing {
            target: row
            clearance: -(Theme.strokeFocus + Theme.strokeFocusGap)
        }
    }
}
