pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// One message of a conversation: the shopper's own in a bubble at the end, the other's plain on the ground, and below
// it whatever belongs to it.
Item {
    id: bubble

    property bool mine: false
    property string text
    property string speaker // whose it is, for assistive tools
    property string timeLabel
    property string heading // above it, where a new day begins
    property var sentences: [] // of the text, each to be reached by itself
    property bool sending: false
    property string problem // why it may not have arrived
    property alias extras: extras.data

    // What is very long is shown as far as one reads, and in full when asked for.
    readonly property int most: 4000
    readonly property bool isLong: text.length > most
    property bool expanded: false
    readonly property string shownText: isLong && !expanded ? text.slice(0, most - 500).trim() + "…" : text

    signal retryAsked()
    signal removeAsked()

    // A list asks for its height at once, before anything is laid out by itself.
    function layOut(): void {
        extras.forceLayout()
        column.forceLayout()
    }

    implicitHeight: column.height
    Component.onCompleted: layOut()

    Accessible.role: Accessible.ListItem
    Accessible.name: (timeLabel === "" ? speaker : speaker + ", " + timeLabel)
                     + (sending ? ", " + qsTranslate("Loomstreet", "Sending…") : "")
                     + (problem === "" ? "" : ", " + problem)

    Column {
        id: column

        width: parent.width
        spacing: Theme.space1

        TextLabel {
            objectName: "heading"
            width: parent.width
            bottomPadding: Theme.spaceHalf - topPadding
            visible: text !== ""
            text: bubble.heading
            type: Theme.type.small
            figures: true
            color: Theme.muted
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.Heading
        }
        Item {
            id: place

            readonly property int margin: bubble.mine ? Theme.space1_5 : 0
            // A bubble leaves some of the width to the other side.
            readonly property real room: bubble.mine ? Math.floor(width * 0.86) - 2 * margin : width

            width: parent.width
            height: words.implicitHeight + (bubble.mine ? 18 : 0)
            visible: bubble.text !== ""

            Rectangle {
                id: ground

                objectName: "ground"
                anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
                width: words.width + 2 * place.margin
                visible: bubble.mine
                radius: Theme.radiusPanel
                color: Theme.hover

                // The corner that points to who says it.
                Rectangle {
                    anchors { right: parent.right; bottom: parent.bottom }
                    width: Theme.radiusPanel
                    height: width
                    radius: Theme.radiusSmall
                    color: parent.color
                }
            }
            SelectableText {
                id: words

                objectName: "text"
                anchors { left: bubble.mine ? undefined : parent.left; right: bubble.mine ? parent.right : undefined; rightMargin: place.margin; verticalCenter: parent.verticalCenter }
                width: bubble.mine ? Math.min(Math.ceil(implicitWidth), place.room) : place.room
                text: bubble.shownText

                Accessible.role: Accessible.Paragraph
                Accessible.name: bubble.shownText

                // Each sentence stands in the tree below the text that holds it.
                Repeater {
                    model: bubble.expanded ? bubble.sentences : bubble.sentences.slice(0, 40)

                    Item {
                        required property string modelData

                        anchors.fill: parent
                        Accessible.role: Accessible.StaticText
                        Accessible.name: modelData
                    }
                }
            }
            Icon {
                objectName: "sending"
                anchors { right: ground.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
                visible: bubble.sending
                name: "clock"
                size: 16
                color: Theme.muted
            }
        }
        LinkButton {
            objectName: "expand"
            anchors { left: bubble.mine ? undefined : parent.left; right: bubble.mine ? parent.right : undefined }
            visible: bubble.isLong
            text: bubble.expanded ? qsTranslate("Loomstreet", "Show less") : qsTranslate("Loomstreet", "Show all")
            onClicked: bubble.expanded = !bubble.expanded
        }
        // As wide as it needs, below the end of the bubble.
        Item {
            width: parent.width
            height: visible ? trouble.height : 0
            visible: bubble.problem !== ""

            Column {
                id: trouble

                anchors.right: parent.right
                width: parent.width

                Row {
                    anchors.right: parent.right
                    spacing: 6

                    Icon {
                        y: Math.round((reason.type.line - height) / 2)
                        name: "warning"
                        size: 16
                        color: Theme.danger
                    }
                    TextLabel {
                        id: reason

                        objectName: "problem"
                        width: Math.min(implicitWidth, trouble.width - 22)
                        text: bubble.problem
                        type: Theme.type.caption
                        color: Theme.danger
                        wrapMode: Text.Wrap
                        Accessible.role: Accessible.AlertMessage
                    }
                }
                Row {
                    anchors.right: parent.right
                    spacing: Theme.space2

                    LinkButton {
                        objectName: "retry"
                        text: qsTranslate("Loomstreet", "Try again")
                        onClicked: bubble.retryAsked()
                    }
                    LinkButton {
                        objectName: "remove"
                        text: qsTranslate("Loomstreet", "Remove")
                        onClicked: bubble.removeAsked()
                    }
                }
            }
        }
        Column {
            id: extras

            width: parent.width
            visible: children.length > 0
            spacing: Theme.space1
        }
    }
}
