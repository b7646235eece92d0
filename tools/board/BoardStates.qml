import QtQuick
import Loomstreet.Theme
import Loomstreet.Components

Grid {
    id: root

    property var board: ({ say: (english, arabic) => english })
    readonly property real cellWidth: (width - 2 * columnSpacing) / 3
    readonly property real cellHeight: (height - rowSpacing) / 2

    columns: 3
    columnSpacing: Theme.space2
    rowSpacing: Theme.space2

    component Box: Rectangle {
        width: (parent as Grid).width / 3 - 11
        height: (parent as Grid).height / 2 - 8
        color: "transparent"
        radius: Theme.radiusPanel
        border.color: Theme.hairline
    }

    Box {
        EmptyState {
            anchors.fill: parent
            pictures: ["https://pictures.test/g", "https://pictures.test/h", "https://pictures.test/i"]
            title: root.board.say("Your cart is empty", "سلتك فارغة")
            sentence: root.board.say("Items you add will show up here.", "ستظهر هنا القطع التي تضيفها.")

            PushButton { kind: "primary"; text: root.board.say("Continue Shopping", "متابعة التسوق") }
        }
    }
    Box {
        ErrorState {
            anchors.fill: parent
            title: root.board.say("Couldn't load your cart", "تعذر تحميل سلتك")
            sentence: root.board.say("Your items are safe. Check your connection and try again.",
                                     "قطعك بأمان. تحقق من الاتصال وحاول مجددًا.")
        }
    }
    Box {
        EmptyState {
            anchors.fill: parent
            iconName: "magnifyingglass"
            title: root.board.say("No results for “velvet opera gown”", "لا نتائج")
            sentence: root.board.say("Check the spelling, try a broader word, or browse New In.",
                                     "تحقق من الإملاء أو جرّب كلمة أعم.")

            PushButton { kind: "primary"; text: root.board.say("New In", "وصل حديثًا") }
            PushButton { text: root.board.say("Search by Image…", "بحث بالصورة…") }
        }
    }
    Box {
        Column {
            anchors.fill: parent

            OfflineStrip { width: parent.width }
            ErrorState {
                width: parent.width
                takesFocus: false
                sentence: root.board.say("Something unexpected came back. Try again.",
                                         "حدث أمر غير متوقع. حاول مجددًا.")
                busy: true
            }
        }
    }
    Box {
        DataTable {
            anchors { fill: parent; margins: Theme.space3 }
            headings: [
                root.board.say("Size", "المقاس"), root.board.say("Bust", "الصدر"), root.board.say("Waist", "الخصر"),
                root.board.say("Hip", "الورك"), root.board.say("Length", "الطول")
            ]
            rows: [["XXS", "76 – 80", "58 – 62", "84 – 88", "123"], ["XS", "80 – 84", "62 – 66", "88 – 92", "124"],
                   ["S", "84 – 88", "66 – 70", "92 – 96", "125"], ["M", "88 – 92", "70 – 74", "96 – 100", "126"],
                   ["L", "92 – 98", "74 – 80", "100 – 106", "127"]]
            markedRow: 3
        }
    }
    Box {
        Toast {
            anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; topMargin: Theme.space3 }
            width: Math.min(460, parent.width - 32)
            open: true
            iconName: "checkmark.seal"
            tone: "success"
            title: root.board.say("Order placed", "تم تقديم الطلب")
            text: root.board.say("Order LST10483 is confirmed. It will show under Orders in a few minutes.",
                                 "تم تأكيد الطلب LST10483. سيظهر ضمن الطلبات بعد دقائق.")
            actionText: root.board.say("Open", "فتح")
        }
        Row {
            anchors { bottom: parent.bottom; left: parent.left; margins: Theme.space3 }
            spacing: Theme.space1

            IconDisc { iconName: "tag" }
            IconDisc { iconName: "checkmark"; tone: "success" }
            IconDisc { iconName: "warning"; tone: "warning" }
            IconDisc { iconName: "warning"; tone: "danger" }
            IconDisc { iconName: "sparkles"; tone: "accent" }
        }
    }
}
