pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Whom one is talking to, what one is talking of, and what else can be done.
Item {
    id: header

    required property AppModel app
    property MiraChatModel mira
    property bool docked: false // beside a page
    property int padding: Theme.space2 + 4
    property bool topicsBeside: false // they are shown already
    // Where she can be shown instead.
    property alias places: places.data

    signal wardrobeAsked()
    signal measurementsAsked()
    signal weatherAsked()
    signal topicBegun()

    function showTopics(): void {
        if (topics.status === Loader.Null)
            topics.setSource("MiraTopicsPopover.qml", { mira: mira })
        topics.made.x = Qt.binding(() => header.LayoutMirroring.enabled ? header.padding : header.width - topics.made.width - header.padding)
        topics.made.y = header.height
        topics.made.open()
    }
    function showMenu(): void {
        if (menu.status === Loader.Null)
            menu.setSource("MiraMenu.qml", { header: header, parent: more })
        menu.made.open()
    }

    implicitHeight: Math.max(Theme.layoutTopBar, words.height + Theme.space1)

    Rectangle {
        id: disc

        anchors { left: parent.left; leftMargin: header.padding; verticalCenter: parent.verticalCenter }
        width: 28
        height: 28
        radius: 14
        color: Theme.accent

        Icon {
            anchors.centerIn: parent
            name: "sparkles"
            size: 16
            color: Theme.accentInk
        }
    }
    Column {
        id: words

        anchors { left: disc.right; leftMargin: Theme.space1_5; right: end.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }

        TextLabel {
            objectName: "guideName"
            width: parent.width
            text: header.mira.guideName
            type: Theme.type.panel
            Accessible.role: Accessible.Heading
        }
        TextLabel {
            objectName: "topic"
            width: parent.width
            visible: text !== ""
            text: header.mira.currentTopicTitle
            type: Theme.type.caption
            color: Theme.muted
        }
    }
    Row {
        id: end

        anchors { right: parent.right; rightMargin: Theme.space1_5; verticalCenter: parent.verticalCenter }
        spacing: Theme.spaceHalf

        CallButton {
            app: header.app
            docked: header.docked
        }
        IconButton {
            id: more

            objectName: "miraMenu"
            iconName: "ellipsis"
            on: menu.made?.visible ?? false
            showsToolTip: !on
            text: qsTranslate("Loomstreet", "More")
            onClicked: on ? menu.made.close() : header.showMenu()
        }
        Row {
            id: places

            spacing: Theme.spaceHalf
        }
    }
    // Made when they are first asked for.
    Loader {
        id: menu

        readonly property var made: item
    }
    Loader {
        id: topics

        readonly property var made: item
    }
    Hairline {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
    }
}
