pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// Where a package is and what happened to it, the newest first.
Column {
    id: timeline

    required property var modelData

    signal carrierAsked(string url)

    objectName: "timeline." + modelData.number
    spacing: Theme.space2

    Column {
        width: parent.width
        spacing: 2

        TextLabel {
            objectName: "status"
            width: parent.width
            text: timeline.modelData.status
            type: Theme.type.section
            wrapMode: Text.Wrap
            color: timeline.modelData.tone === "danger" ? Theme.danger : Theme.ink
            Accessible.role: Accessible.Heading
        }
        TextLabel {
            width: parent.width
            visible: timeline.modelData.expected !== ""
            text: qsTranslate("Loomstreet", "Expected %1").arg(timeline.modelData.expected)
            type: Theme.type.bodyStrong
            color: Theme.accent
            wrapMode: Text.Wrap
        }
        TextLabel {
            objectName: "number"
            width: parent.width
            text: Bidi.joined([timeline.modelData.carrier, Bidi.isolate(timeline.modelData.number)])
            type: Theme.type.small
            figures: true
            color: Theme.muted
        }
    }
    LinkButton {
        objectName: "carrierLink"
        anchors.left: parent.left
        visible: timeline.modelData.url !== ""
        text: qsTranslate("Loomstreet", "Open the carrier's page")
        accessibleName: text + ": " + timeline.modelData.carrier
        onClicked: timeline.carrierAsked(timeline.modelData.url)
    }
    TextLabel {
        width: parent.width
        visible: events.count === 0
        text: qsTranslate("Loomstreet", "The carrier has not told anything of it yet.")
        color: Theme.muted
        wrapMode: Text.Wrap
    }
    Column {
        width: parent.width

        Accessible.role: Accessible.List
        Accessible.name: qsTranslate("Loomstreet", "What happened to the package")

        Repeater {
            id: events

            model: timeline.modelData.events

            Item {
                id: event

                required property int index
                required property var modelData
                readonly property bool newest: index === 0
                readonly property string facts: Bidi.joined([modelData.place, modelData.when])

                width: timeline.width
                height: words.height + Theme.space2

                Accessible.role: Accessible.ListItem
                Accessible.name: modelData.text + ", " + facts

                // The way down to what was before.
                Rectangle {
                    anchors { horizontalCenter: dot.horizontalCenter; top: dot.bottom; topMargin: 4 }
                    visible: event.index < events.count - 1
                    width: 1
                    height: event.height - dot.height - 8
                    color: Theme.border
                }
                Rectangle {
                    id: dot

                    anchors { left: parent.left; top: parent.top; topMargin: 5 }
                    width: 10
                    height: 10
                    radius: 5
                    color: event.newest ? timeline.modelData.tone === "danger" ? Theme.danger : Theme.accent : Theme.paper
                    border.width: event.newest ? 0 : 1.5
                    border.color: Theme.border
                }
                Column {
                    id: words

                    anchors { left: dot.right; leftMargin: Theme.space2; right: parent.right }

                    TextLabel {
                        width: parent.width
                        text: event.modelData.text
                        type: event.newest ? Theme.type.bodyStrong : Theme.type.body
                        wrapMode: Text.Wrap
                        Accessible.ignored: true
                    }
                    TextLabel {
                        width: parent.width
                        text: event.facts
                        type: Theme.type.small
                        figures: true
                        color: Theme.muted
                        wrapMode: Text.Wrap
                        Accessible.ignored: true
                    }
                }
            }
        }
    }
}
