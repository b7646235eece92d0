import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// The head of a page that lists pieces: its name, a note, and at the end what can be done; below them where there is
// too little room beside.
Item {
    id: header

    property alias title: words.title
    property alias note: words.note
    property bool narrow: false
    default property alias actions: actions.data

    readonly property real natural: {
        let sum = -actions.spacing
        for (let i = 0; i < actions.children.length; ++i) {
            const child = actions.children[i]
            sum += child.visible ? child.implicitWidth + actions.spacing : 0
        }
        return Math.ceil(Math.max(0, sum))
    }
    readonly property bool stacked: words.titleWidth + natural + 2 * Theme.space2 > width

    implicitHeight: 2 * Theme.space3 + words.implicitHeight + (stacked ? Theme.space1_5 + actions.height : 0)

    SectionHeader {
        id: words

        anchors { left: parent.left; top: parent.top; topMargin: Theme.space3 }
        width: header.stacked ? parent.width : parent.width - header.natural - Theme.space2
        type: header.narrow ? Theme.type.heading : Theme.type.title
    }
    Flow {
        id: actions

        anchors.right: parent.right
        y: header.stacked ? words.y + words.height + Theme.space1_5 : words.y + Math.round((words.height - height) / 2)
        width: header.stacked ? parent.width : header.natural
        spacing: Theme.space1
    }
}
