pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model

// The pages a tab can go back to, or forward, the nearest first.
Menu {
    id: menu

    required property Router router
    property bool forward: false
    property var titles: []

    objectName: forward ? "forwardMenu" : "backMenu"
    onAboutToShow: titles = forward ? router.forwardTitles() : router.backTitles()

    Repeater {
        model: menu.titles

        MenuItem {
            required property string modelData
            required property int index

            objectName: "history." + index
            text: modelData === "" ? qsTranslate("Loomstreet", "Untitled page") : modelData
            onTriggered: menu.router.go(menu.forward ? index + 1 : -index - 1)
        }
    }
}
