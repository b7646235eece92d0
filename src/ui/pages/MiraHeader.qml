pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Whom one is talking to, what one is talking of, and what else can be done.
Item {
    id: header

    property MiraChatModel mira
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

        IconButton {
            id: more

            objectName: "miraMenu"
            iconName: "ellipsis"
            on: menu.visible
            showsToolTip: !on
            text: qsTranslate("Loomstreet", "More")
            onClicked: menu.visible ? menu.close() : menu.open()

            Menu {
                id: menu

                x: more.mirrored ? 0 : more.width - width
                y: more.height + Theme.spaceHalf

                MenuItem {
                    objectName: "menu.newTopic"
                    iconName: "plus"
                    text: qsTranslate("Loomstreet", "New topic")
                    onTriggered: {
                        header.mira.newTopic()
                        header.topicBegun()
                    }
                }
                MenuItem {
                    objectName: "menu.topics"
                    height: visible ? implicitHeight : 0
                    visible: !header.topicsBeside
                    iconName: "clock"
                    text: qsTranslate("Loomstreet", "Topics…")
                    onTriggered: header.showTopics()
                }
                MenuItem {
                    objectName: "menu.refresh"
                    enabled: !header.mira.isLoading
                    iconName: "arrow.clockwise"
                    text: qsTranslate("Loomstreet", "Refresh")
                    onTriggered: header.mira.refresh()
                }
                MenuSeparator {}
                MenuItem {
                    objectName: "menu.wardrobe"
                    iconName: "hanger"
                    text: qsTranslate("Loomstreet", "Style with my pieces…")
                    onTriggered: header.wardrobeAsked()
                }
                MenuItem {
                    objectName: "menu.measurements"
                    iconName: "ruler"
                    text: qsTranslate("Loomstreet", "My measurements…")
                    onTriggered: header.measurementsAsked()
                }
                MenuItem {
                    objectName: "menu.weather"
                    iconName: "cloud"
                    text: qsTranslate("Loomstreet", "Weather…")
                    onTriggered: header.weatherAsked()
                }
            }
        }
        Row {
            id: places

            spacing: Theme.spaceHalf
        }
    }
    // Made when it is first asked for.
    Loader {
        id: topics

        readonly property var made: item
    }
    Hairline {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
    }
}
