pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A topic: opened by a press, named anew in its place, and deleted after a question.
FocusScope {
    id: row

    required property var model
    required property int index

    // What of it is asked for now.
    property bool renaming: false
    property bool deleting: false

    signal opened()
    signal renamed(string title)
    signal deleteAsked()

    function beginRenaming(): void {
        deleting = false
        renaming = true
        title.text = model.title
        title.selectAll()
        title.forceActiveFocus(Qt.OtherFocusReason)
    }
    function beginDeleting(): void {
        renaming = false
        deleting = true
        keep.forceActiveFocus(Qt.OtherFocusReason)
    }
    function end(): void {
        if (!renaming && !deleting)
            return
        renaming = false
        deleting = false
        control.forceActiveFocus(Qt.OtherFocusReason)
    }

    implicitHeight: Math.max(52, deleting ? question.height + Theme.space2 : 0, control.implicitHeight)

    Keys.onEscapePressed: event => {
        event.accepted = renaming || deleting
        end()
    }
    Keys.onPressed: event => {
        event.accepted = control.activeFocus && (event.key === Qt.Key_F2 || event.key === Qt.Key_Delete)
        if (event.accepted)
            event.key === Qt.Key_F2 ? beginRenaming() : beginDeleting()
    }

    Accessible.role: Accessible.ListItem
    Accessible.name: model.title

    Pressable {
        id: control

        objectName: "topic." + row.index
        anchors.fill: parent
        focus: true
        visible: !row.renaming && !row.deleting
        accessibleName: row.model.title + ", " + row.model.when
        horizontalPadding: Theme.space1_5
        verticalPadding: Theme.space1
        onClicked: row.opened()

        contentItem: Item {
            implicitHeight: words.height

            Column {
                id: words

                anchors { left: parent.left; right: parent.right; rightMargin: Theme.targetIcon; verticalCenter: parent.verticalCenter }

                TextLabel {
                    width: parent.width
                    text: row.model.title
                    type: row.model.isCurrent ? Theme.type.bodyStrong : Theme.type.body
                    Accessible.ignored: true
                }
                TextLabel {
                    width: parent.width
                    text: row.model.when
                    type: Theme.type.caption
                    figures: true
                    color: Theme.muted
                    Accessible.ignored: true
                }
            }
        }
        background: Rectangle {
            radius: Theme.radiusControl
            color: control.down ? Theme.pressed : row.model.isCurrent || control.hovered ? Theme.hover : "transparent"

            FocusRing { target: control }
        }

        Accessible.checkable: true
        Accessible.checked: row.model.isCurrent
    }
    IconButton {
        id: more

        objectName: "topicMenu." + row.index
        anchors { right: parent.right; rightMargin: Theme.spaceHalf; verticalCenter: parent.verticalCenter }
        visible: control.visible
        iconName: "ellipsis"
        iconSize: 16
        on: menu.visible
        text: qsTranslate("Loomstreet", "More")
        accessibleName: text + ": " + row.model.title
        onClicked: menu.open()

        Menu {
            id: menu

            x: more.mirrored ? 0 : more.width - width
            y: more.height

            MenuItem {
                objectName: "renameTopic"
                text: qsTranslate("Loomstreet", "Rename")
                shortcut: "F2"
                onTriggered: row.beginRenaming()
            }
            MenuItem {
                objectName: "deleteTopic"
                text: qsTranslate("Loomstreet", "Delete")
                shortcut: "Del"
                onTriggered: row.beginDeleting()
            }
        }
    }
    TextBox {
        id: title

        objectName: "topicTitle"
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
        visible: row.renaming
        maximumLength: 80
        onAccepted: {
            if (text.trim() !== "")
                row.renamed(text.trim())
            row.end()
        }
        onActiveFocusChanged: if (!activeFocus) row.renaming = false
        background: Rectangle {
            radius: Theme.radiusControl
            color: Theme.surface
            border.width: Theme.strokeControl
            border.color: Theme.ink
        }

        Accessible.name: qsTranslate("Loomstreet", "Name of the topic")
    }
    Column {
        id: question

        anchors { left: parent.left; right: parent.right; leftMargin: Theme.space1_5; rightMargin: Theme.space1_5; verticalCenter: parent.verticalCenter }
        visible: row.deleting
        spacing: Theme.space1

        TextLabel {
            width: parent.width
            text: qsTranslate("Loomstreet", "Delete “%1”?").arg(row.model.title)
            type: Theme.type.label
            wrapMode: Text.Wrap
            maximumLineCount: 2
            Accessible.role: Accessible.AlertMessage
        }
        Flow {
            width: parent.width
            spacing: Theme.space1

            PushButton {
                id: keep

                objectName: "keepTopic"
                size: "small"
                text: qsTranslate("Loomstreet", "Keep")
                onClicked: row.end()
            }
            PushButton {
                objectName: "confirmDeleteTopic"
                kind: "danger"
                size: "small"
                text: qsTranslate("Loomstreet", "Delete")
                onClicked: row.deleteAsked()
            }
        }
    }
}
