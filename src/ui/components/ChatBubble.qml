import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// One message of a conversation: the shopper's own in a bubble at the end, the other's plain on the ground, and below
// it whatever belongs to it. Hundreds of them pass by quickly: what few have is made for those few, and each thing's
// place follows from the heights of those above, so that a list has its height at once.
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
    property real extrasHeight: 0

    // What is very long is shown as far as one reads, and in full when asked for.
    readonly property int most: 4000
    readonly property bool isLong: text.length > most
    property bool expanded: false
    readonly property string shownText: isLong && !expanded ? text.slice(0, most - 500).trim() + "…" : text

    // Sides change when it is given another message: anchors would keep the width they gave meanwhile.
    readonly property bool atLeft: mine === LayoutMirroring.enabled
    readonly property real gap: Theme.space1
    readonly property real wordsTop: heading === "" ? 0 : day.height + gap
    readonly property real expandTop: wordsTop + (text === "" ? 0 : place.height + gap)
    readonly property real troubleTop: expandTop + (isLong ? expand.height + gap : 0)
    readonly property real extrasTop: troubleTop + (problem === "" ? 0 : trouble.height + gap)

    signal retryAsked()
    signal removeAsked()

    // The day that begins and its first time, parted as the day's script does.
    function headingOf(day: string, time: string): string {
        if (day === "" || time === "")
            return day
        const scripts = Scripts.of(day)
        const between = scripts & Scripts.Arabic ? "، " : scripts & (Scripts.Han | Scripts.Thai) ? " " : ", "
        return day + between + Bidi.isolate(time)
    }

    implicitHeight: Math.max(0, extrasTop + (extrasHeight > 0 ? extrasHeight : -gap))

    // A list keeps those that have left the view, and gives them another message later.
    ListView.onPooled: {
        const list = ListView.view as ChatList
        list.letGo(bubble)
        visible = false
        expanded = false
        words.deselect()
    }
    ListView.onReused: visible = true

    Accessible.role: Accessible.ListItem
    Accessible.name: (timeLabel === "" ? speaker : speaker + ", " + timeLabel)
                     + (sending ? ", " + qsTranslate("Loomstreet", "Sending…") : "")
                     + (problem === "" ? "" : ", " + problem)

    Loader {
        id: day

        width: parent.width
        active: bubble.heading !== ""
        sourceComponent: TextLabel {
            objectName: "heading"
            bottomPadding: Theme.spaceHalf - topPadding
            text: bubble.heading // qmllint disable unqualified
            type: Theme.type.small
            figures: true
            color: Theme.muted
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.Heading
        }
    }
    Item {
        id: place

        readonly property int margin: bubble.mine ? Theme.space1_5 : 0
        // A bubble leaves some of the width to the other side.
        readonly property real room: bubble.mine ? Math.floor(width * 0.86) - 2 * margin : width

        y: bubble.wordsTop
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

            // Asked for from the start: the first question has it laid out anew.
            readonly property real natural: implicitWidth

            objectName: "text"
            anchors.verticalCenter: parent.verticalCenter
            x: bubble.atLeft ? place.margin : parent.width - width - place.margin
            width: bubble.mine ? Math.min(Math.ceil(natural), place.room) : place.room
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
        Loader {
            anchors { right: ground.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
            active: bubble.sending
            sourceComponent: Icon {
                objectName: "sending"
                name: "clock"
                size: 16
                color: Theme.muted
            }
        }
    }
    Loader {
        id: expand

        x: bubble.atLeft ? 0 : parent.width - width
        y: bubble.expandTop
        active: bubble.isLong
        sourceComponent: LinkButton {
            objectName: "expand"
            text: bubble.expanded ? qsTranslate("Loomstreet", "Show less") : qsTranslate("Loomstreet", "Show all") // qmllint disable unqualified
            onClicked: bubble.expanded = !bubble.expanded // qmllint disable unqualified
        }
    }
    Loader {
        id: trouble

        y: bubble.troubleTop
        width: parent.width
        active: bubble.problem !== ""
        sourceComponent: ChatTrouble {
            text: bubble.problem // qmllint disable unqualified
            onRetryAsked: bubble.retryAsked() // qmllint disable unqualified
            onRemoveAsked: bubble.removeAsked() // qmllint disable unqualified
        }
    }
    Item {
        id: extras

        y: bubble.extrasTop
        width: parent.width
        height: bubble.extrasHeight
        visible: height > 0
    }
}
