import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A card of the home's dashboard: what it is about, a sentence, and the way on or what stands in its place.
Pressable {
    id: card

    property string iconName
    property string line
    property string sentence
    // The card at the start is in line with the page, others stand behind a hairline.
    property bool first: false
    // So is the end of the last one.
    property bool last: false
    // How many lines the sentences beside it take, so that what stands below them is on one line.
    property int lines: 1
    readonly property int ownLines: sentence.lineCount
    // As wide as the way on needs it.
    readonly property real wayWidth: (text !== "" ? way.implicitWidth + Theme.spaceHalf + arrow.width : 0) + 2 * Theme.space2
    default property alias instead: instead.data

    accessibleName: line + ", " + sentence + (text === "" ? "" : ", " + text)
    implicitHeight: Math.max(Theme.cardDashboardHeight, implicitContentHeight + Theme.space2)

    contentItem: Item {
        implicitHeight: words.implicitHeight

        Column {
            id: words

            anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
            anchors.leftMargin: card.first ? 0 : Theme.space2
            anchors.rightMargin: card.last ? 0 : Theme.space2
            spacing: 3

            Item {
                width: parent.width
                implicitHeight: Math.max(16, about.implicitHeight)

                Icon {
                    id: icon

                    anchors { left: parent.left; verticalCenter: parent.verticalCenter }
                    name: card.iconName
                    size: 16
                    color: Theme.muted
                }
                TextLabel {
                    id: about

                    objectName: "line"
                    anchors { left: icon.right; leftMargin: Theme.space1; right: parent.right; verticalCenter: parent.verticalCenter }
                    text: card.line
                    type: Theme.type.small
                    figures: true
                    color: Theme.muted
                    Accessible.ignored: true
                }
            }
            Item {
                width: parent.width
                implicitHeight: sentence.implicitHeight + Math.max(0, card.lines - card.ownLines) * sentence.type.line

                TextLabel {
                    id: sentence

                    objectName: "sentence"
                    width: parent.width
                    text: card.sentence
                    type: Theme.type.panel
                    font.pixelSize: Math.round(19 * Theme.textScale)
                    font.weight: Font.Normal
                    wrapMode: Text.Wrap
                    maximumLineCount: 2
                    Accessible.ignored: true
                }
            }
            Item {
                id: instead

                width: parent.width
                implicitHeight: Math.max(Theme.type.label.line, childrenRect.height)

                TextLabel {
                    id: way

                    anchors { left: parent.left; verticalCenter: parent.verticalCenter }
                    width: Math.min(implicitWidth, parent.width - arrow.width - Theme.spaceHalf)
                    visible: text !== ""
                    text: card.text
                    type: Theme.type.label
                    font.underline: card.hovered
                    color: Theme.accent
                    Accessible.ignored: true
                }
                Icon {
                    id: arrow

                    anchors { left: way.right; leftMargin: Theme.spaceHalf; verticalCenter: parent.verticalCenter }
                    visible: way.visible
                    name: "chevron.right"
                    size: 14
                    color: Theme.accent
                }
            }
        }
    }
    background: Item {
        Hairline {
            anchors { left: parent.left; top: parent.top; bottom: parent.bottom; topMargin: Theme.space1; bottomMargin: Theme.space1 }
            visible: !card.first
        }
        FocusRing { target: card }
    }

    HoverHandler { cursorShape: Qt.PointingHandCursor }
}
