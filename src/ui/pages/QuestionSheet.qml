import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A small sheet that asks before something is done: what it would do, and the ways to answer.
Sheet {
    id: sheet

    property string title
    property string sentence
    property alias answers: answers.data
    default property alias content: content.data

    name: title
    extent: Qt.size(480, words.implicitHeight + 2 * Theme.space4)

    Flickable {
        id: flick

        anchors.fill: parent
        contentHeight: words.implicitHeight + 2 * Theme.space4
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive
        ScrollBar.vertical: ScrollBar {}

        FocusFollower { flickable: flick }

        Column {
            id: words

            x: Theme.space4
            y: Theme.space4
            width: flick.width - 2 * Theme.space4
            spacing: Theme.space2

            TextLabel {
                objectName: "title"
                anchors.left: parent.left
                width: parent.width - Theme.space4 // beside the way to close
                text: sheet.title
                type: Theme.type.section
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
            }
            TextLabel {
                objectName: "sentence"
                width: parent.width
                text: sheet.sentence
                wrapMode: Text.Wrap
            }
            Column {
                id: content

                width: parent.width
                visible: children.length > 0
                spacing: Theme.space2
            }
            Flow {
                id: answers

                width: parent.width
                topPadding: Theme.space1
                spacing: Theme.space1
            }
        }
    }
}
