pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The conversations that are kept on this machine, and the way to a new one.
FocusScope {
    id: topics

    property MiraChatModel mira

    // One of them is shown now.
    signal opened()

    implicitWidth: 320
    implicitHeight: Math.min(440, header.height + list.contentHeight + note.height + 2 * Theme.space1)

    Item {
        id: header

        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: Theme.targetControl

        TextLabel {
            anchors { left: parent.left; leftMargin: Theme.space1_5; right: add.left; verticalCenter: parent.verticalCenter }
            text: qsTranslate("Loomstreet", "Topics")
            type: Theme.type.panel
            Accessible.role: Accessible.Heading
        }
        IconButton {
            id: add

            objectName: "newTopic"
            anchors { right: parent.right; rightMargin: Theme.spaceHalf; verticalCenter: parent.verticalCenter }
            focus: true
            iconName: "plus"
            text: qsTranslate("Loomstreet", "New topic")
            onClicked: {
                topics.mira.newTopic()
                topics.opened()
            }
        }
    }
    ListView {
        id: list

        objectName: "topics"
        anchors { left: parent.left; right: parent.right; top: header.bottom; topMargin: Theme.space1; bottom: note.top; bottomMargin: Theme.space1 }
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: true
        clip: true
        model: topics.mira.topics
        ScrollBar.vertical: ScrollBar {}

        Accessible.role: Accessible.List
        Accessible.name: qsTranslate("Loomstreet", "Topics")

        delegate: MiraTopicRow {
            width: list.width
            onOpened: {
                topics.mira.openTopic(model.id)
                topics.opened()
            }
            onRenamed: title => topics.mira.renameTopic(model.id, title)
            onDeleteAsked: {
                const next = index
                topics.mira.deleteTopic(model.id)
                list.currentIndex = Math.min(next, list.count - 1)
                if (list.currentItem)
                    list.currentItem.forceActiveFocus(Qt.OtherFocusReason)
                else
                    add.forceActiveFocus(Qt.OtherFocusReason)
            }
        }
        removeDisplaced: Transition {
            NumberAnimation { property: "y"; duration: Theme.durationHover }
        }
        FocusFollower { flickable: list }
    }
    TextLabel {
        id: note

        objectName: "topicsNote"
        anchors { left: parent.left; right: parent.right; leftMargin: Theme.space1_5; rightMargin: Theme.space1_5; bottom: parent.bottom }
        text: topics.mira.topicsNote
        type: Theme.type.caption
        color: Theme.muted
        wrapMode: Text.Wrap
    }
}
