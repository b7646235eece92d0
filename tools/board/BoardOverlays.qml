import QtQuick
import QtQuick.Templates as T
import Loomstreet.Theme
import Loomstreet.Components

Item {
    id: root

    property var board: ({ say: (english, arabic) => english })

    MenuBar {
        width: 480

        Menu {
            id: fileMenu

            title: root.board.say("Window", "نافذة")

            MenuItem { text: root.board.say("New Tab", "لسان جديد"); iconName: "plus"; shortcut: "Ctrl T" }
            MenuItem { text: root.board.say("Close Tab", "إغلاق اللسان"); shortcut: "Ctrl W" }
            MenuItem { text: root.board.say("Close Other Tabs", "إغلاق الألسنة الأخرى"); enabled: false }
            MenuSeparator {}
            MenuItem {
                text: root.board.say("Show Sidebar", "إظهار الشريط")
                checkable: true
                checked: true
                shortcut: "Ctrl B"
            }
            Menu {
                title: root.board.say("Zoom", "تكبير")

                MenuItem { text: "100 %" }
            }
        }
        Menu {
            title: root.board.say("Help", "مساعدة")

            MenuItem { text: root.board.say("About", "حول") }
        }
    }
    IconButton {
        id: anchor

        y: 300
        anchors.left: parent.left
        iconName: "footprints"
        text: root.board.say("Footprints", "آثار")

        ToolTip {
            visible: true
            delay: 0
            text: root.board.say("Footprints", "آثار")
            shortcut: "Ctrl Shift H"
        }
    }
    Rectangle {
        anchors { left: parent.left; top: parent.top; leftMargin: 640; topMargin: 20 }
        width: 300
        height: 120
        radius: 10
        color: Theme.surface

        Elevation { z: -1; anchors.fill: parent; style: Theme.shadowWindow; radius: 10 }
    }
    Rectangle {
        anchors { left: parent.left; top: parent.top; leftMargin: 640; topMargin: 220 }
        width: 300
        height: 36
        radius: 6
        color: Theme.surface

        Elevation { z: -1; anchors.fill: parent; style: Theme.shadowLifted }
    }
    Panel {
        open: true
        title: root.board.say("Shopping bag", "حقيبة التسوق")
        anchors.margins: -Theme.space4
        anchors.leftMargin: 380
        headerActions: IconButton { iconName: "expand"; text: "Open as a page" }
        footer: Column {
            width: parent.width
            padding: Theme.space3

            PushButton {
                width: parent.width - 48
                kind: "primary"
                size: "primary"
                iconName: "lock"
                text: root.board.say("Checkout", "الدفع")
            }
        }
    }
    Timer { interval: 100; running: true; onTriggered: fileMenu.popup(root, 0, 60) }
}
