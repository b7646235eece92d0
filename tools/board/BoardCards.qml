import QtQuick
import Loomstreet.Theme
import Loomstreet.Components

Column {
    id: root

    property var board: ({ say: (english, arabic) => english })

    spacing: Theme.space4

    SectionHeader {
        width: parent.width
        title: root.board.say("For you", "لك")
        note: root.board.say("Based on what you love", "بناءً على ما تحب")
        actionText: root.board.say("See all", "عرض الكل")
        paged: true
        hasNext: true
    }
    Row {
        id: cards

        readonly property real cardWidth: (root.width - 5 * spacing) / 6

        width: parent.width
        spacing: Theme.cardGapX

        ProductCard {
            width: cards.cardWidth
            designer: "Tallis & Rook"
            title: root.board.say("Sabine bias slip dress", "فستان سابين الحريري المائل")
            price: root.board.say("$248.00", "930.00 ر.س")
            pictures: ["https://pictures.test/sabine"]
            dots: ["#8fa48b", "#34302f", "#d8aaa1", "#a54b33"]
            canSave: true
            saved: true
            previewed: true
        }
        ProductCard {
            objectName: "hoveredCard"
            width: cards.cardWidth
            designer: "Isolde Marr"
            title: root.board.say("Odile tiered dress", "فستان أوديل بطبقات")
            price: root.board.say("$312.00", "1170.00 ر.س")
            pictures: ["https://pictures.test/odile", "https://pictures.test/odile2"]
            dots: ["#d8aaa1", "#f0e6cf", "#56667f"]
            sizes: ["XS", "S", "M", "L", "XL", "XXL", "3XL"]
            canSave: true
        }
        ProductCard {
            width: cards.cardWidth
            designer: "Studio Halden"
            title: root.board.say("Marlow wrap dress in heavy silk crêpe", "فستان مارلو الملفوف")
            price: root.board.say("$193.20", "724.50 ر.س")
            formerPrice: root.board.say("$276.00", "1035.00 ر.س")
            pictures: ["https://pictures.test/marlow"]
            label: root.board.say("Final sale", "تخفيض نهائي")
            dots: ["#a54b33", "#74714a", "#34302f"]
            canSave: true
        }
        ProductCard {
            width: cards.cardWidth
            designer: "Corvin Atelier"
            title: root.board.say("Lune crescent bag", "حقيبة لون")
            price: root.board.say("$385.00", "1443.75 ر.س")
            pictures: ["https://pictures.test/lune"]
            label: root.board.say("New", "جديد")
            reason: root.board.say("New this week · Trending now", "جديد هذا الأسبوع · رائج الآن")
            canSave: true
        }
        ProductCard {
            width: cards.cardWidth
            designer: "Fenmoor Mill"
            title: root.board.say("Brae cable rollneck", "كنزة بري")
            price: "IDR 3.198.000"
            formerPrice: "IDR 4.250.000"
            pictures: ["https://pictures.test/brae"]
            soldOut: true
            reason: root.board.say("quiet luxury style pick", "اختيار بأسلوب هادئ")
        }
        CardSkeleton { width: cards.cardWidth }
    }
    Row {
        spacing: Theme.cardGapX

        Picture { width: 120; height: implicitHeight; address: "https://pictures.test/large" }
        Picture { width: 120; height: implicitHeight; address: "https://pictures.test/late" }
        Picture { width: 120; height: implicitHeight; address: "https://pictures.test/broken" }
        Picture { width: 120; height: implicitHeight; address: "" }
        Picture { width: 120; height: implicitHeight; address: "https://pictures.test/d"; soldOut: true }
        Picture { width: 72; height: implicitHeight; address: "https://pictures.test/e" }
        Picture { width: 72; height: implicitHeight; address: "https://pictures.test/broken2/broken" }
        Picture { width: 36; height: implicitHeight; address: "" }
        Picture { width: 160; height: 160; address: "https://pictures.test/f" }
        Column {
            spacing: Theme.space1

            PictureLabel { text: root.board.say("Presale", "بيع مسبق") }
            Skeleton { width: 140; height: 28 }
            Skeleton { width: 200; height: 32; radius: 16 }
            Skeleton { width: 90 }
        }
    }
    ProductCard {
        width: 176
        designer: "Ludo Vesper"
        title: root.board.say("No picture, no price", "بلا صورة")
        pictures: []
    }
}
