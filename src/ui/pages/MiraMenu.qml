import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// What else can be done with the stylist, below the button for it.
Menu {
    id: menu

    required property MiraHeader header
    readonly property var button: parent

    x: button.mirrored ? 0 : button.width - width
    y: button.height + Theme.spaceHalf

    MenuItem {
        objectName: "menu.newTopic"
        iconName: "plus"
        text: qsTranslate("Loomstreet", "New topic")
        onTriggered: {
            menu.header.mira.newTopic()
            menu.header.topicBegun()
        }
    }
    MenuItem {
        objectName: "menu.topics"
        height: visible ? implicitHeight : 0
        visible: !menu.header.topicsBeside
        iconName: "clock"
        text: qsTranslate("Loomstreet", "Topics…")
        onTriggered: menu.header.showTopics()
    }
    MenuItem {
        objectName: "menu.refresh"
        enabled: !menu.header.mira.isLoading
        iconName: "arrow.clockwise"
        text: qsTranslate("Loomstreet", "Refresh")
        onTriggered: menu.header.mira.refresh()
    }
    MenuSeparator {}
    MenuItem {
        objectName: "menu.wardrobe"
        iconName: "hanger"
        text: qsTranslate("Loomstreet", "Style with my pieces…")
        onTriggered: menu.header.wardrobeAsked()
    }
    MenuItem {
        objectName: "menu.measurements"
        iconName: "ruler"
        text: qsTranslate("Loomstreet", "My measurements…")
        onTriggered: menu.header.measurementsAsked()
    }
    MenuItem {
        objectName: "menu.weather"
        iconName: "cloud"
        text: qsTranslate("Loomstreet", "Weather…")
        onTriggered: menu.header.weatherAsked()
    }
}
