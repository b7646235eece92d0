import QtQuick
import Loomstreet.Theme

// The head of a rail or a section: its title in serif, a note on the same baseline, and at the end the way to all
// of it and the pages of a rail.
Item {
    id: header

    property alias title: title.text
    property alias note: note.text
    property alias actionText: action.text
    property TypeStyle type: Theme.type.section
    property bool paged: false
    property bool hasPrevious: false
    property bool hasNext: false
    // What the title takes when it stands on one line.
    readonly property real titleWidth: title.implicitWidth + (note.text === "" ? 0 : note.implicitWidth + Theme.space1_5)

    signal activated()
    signal previous()
    signal next()

    implicitWidth: 320
    implicitHeight: Math.max(Theme.targetMinimum, title.implicitHeight)

    TextLabel {
        id: title

        readonly property real room: header.width - end.width - (end.width > 0 ? Theme.space2 : 0)

        objectName: "title"
        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        width: Math.min(implicitWidth, room)
        type: header.type
        wrapMode: Text.Wrap
        maximumLineCount: 2
        Accessible.role: Accessible.Heading
    }
    TextLabel {
        id: note

        objectName: "note"
        anchors { left: title.right; leftMargin: Theme.space1_5; baseline: title.baseline }
        width: Math.max(0, Math.min(implicitWidth, title.room - title.width - Theme.space1_5))
        visible: text !== "" && title.lineCount < 2
        type: Theme.type.small
        figures: true
        color: Theme.muted
    }
    Row {
        id: end

        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        spacing: Theme.space1

        LinkButton {
            id: action

            objectName: "action"
            visible: text !== ""
            accessibleName: text + ": " + header.title
            onClicked: header.activated()
        }
        IconButton {
            objectName: "previous"
            visible: header.paged
            enabled: header.hasPrevious
            iconName: "chevron.left"
            text: qsTranslate("Loomstreet", "Previous")
            onClicked: header.previous()
        }
        IconButton {
            objectName: "next"
            visible: header.paged
            enabled: header.hasNext
            iconName: "chevron.right"
            text: qsTranslate("Loomstreet", "Next")
            onClicked: header.next()
        }
    }
}
