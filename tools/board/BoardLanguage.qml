pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Theme
import Loomstreet.Components

// Every style of type in the letters of one language, on two lines where it wraps, and the components that hold words
// close. Below, what other languages look like in its window.
Item {
    id: root

    property var board: ({ language: "en" })

    readonly property string language: board.language
    readonly property var words: ({
        en: ["A quiet jacket, fully lined", "Add to bag"],
        vi: ["Đầm lụa dáng Ậ xường ưỡn ẩm", "Thêm vào giỏ"],
        el: ["Μεταξωτό φόρεμα για γυναίκες", "Προσθήκη στην τσάντα"],
        uk: ["Шовкова сукня їжак ґудзик", "Додати до кошика"],
        de: ["Große Größen für draußen", "In die Einkaufstasche"],
        tr: ["Fiyatı özel ipek elbise, profil fıstık", "Sepete ekle, bildirimler"],
        ar: ["فُستانٌ حريريّ طويل بأكمام واسعة", "أضيفي إلى الحقيبة"],
        he: ["שמלת משי ארוכה עם שרוולים", "הוספה לסל"],
        hi: ["रेशमी पोशाक हृदय त्रुटि र्कैं ट्रैंड", "बैग में जोड़ें"],
        th: ["ชุดเดรสผ้าไหมที่นี้ปู่รู้ญู ฏุ้ง กี่ปั๊ม", "เพิ่มลงถุงช้อปปิ้ง"],
        ja: ["直線的な骨格に化ける絹のワンピース、返品可", "バッグに追加"],
        ko: ["실크 원피스 롱 드레스, 빠른 배송", "쇼핑백에 담기"],
        "zh-Hans": ["直筒真丝连衣裙，骨感角度，可返修", "加入购物袋"],
        "zh-Hant": ["直筒真絲連衣裙，骨感角度，可返修", "加入購物袋"]
    })
    readonly property string sentence: words[language][0]
    readonly property string action: words[language][1]

    Column {
        id: styles

        anchors.left: parent.left
        width: root.width * 0.56
        spacing: Theme.space1

        Repeater {
            model: ["hero", "title", "heading", "section", "panel", "spoken", "spokenBefore", "wordmark", "body",
                    "bodyStrong", "control", "label", "small", "caption", "captionStrong", "overline", "badge", "price",
                    "priceLarge", "total"]

            Row {
                id: line

                required property string modelData
                readonly property TypeStyle type: Theme.type[modelData]

                anchors.left: parent.left
                spacing: Theme.space1

                Rectangle {
                    width: wrapped.width
                    height: wrapped.height
                    color: Theme.sunken

                    TextLabel {
                        id: wrapped

                        width: line.type.size * 11
                        text: root.sentence
                        type: line.type
                        wrapMode: Text.Wrap
                    }
                }
                Rectangle {
                    width: once.width
                    height: once.height
                    color: Theme.sunken

                    Overline { id: once; words: root.action; type: line.type }
                }
                TextLabel { text: "Hx$1,111.80"; figures: true; type: line.type }
            }
        }
    }
    Column {
        anchors.left: styles.right
        anchors.leftMargin: Theme.space3
        anchors.right: parent.right
        spacing: Theme.space2

        Row {
            anchors.left: parent.left
            spacing: Theme.space1

            PushButton { kind: "primary"; text: root.action }
            PushButton { text: root.action }
            Chip { text: root.action; selected: true }
        }
        Tabs { anchors.left: parent.left; width: parent.width; titles: [root.action, "Latin", root.action] }
        SegmentedControl { anchors.left: parent.left; segments: [root.action, "Hx"] }
        FieldInput { anchors.left: parent.left; width: parent.width; label: root.action; text: root.sentence; error: root.sentence }
        FieldInput { anchors.left: parent.left; width: parent.width; label: root.action; placeholderText: root.sentence }
        SearchField { anchors.left: parent.left; width: parent.width; text: root.action + " Hx" }
        Rectangle {
            anchors.left: parent.left
            width: parent.width
            height: selectable.height
            color: Theme.sunken

            SelectableText { id: selectable; width: parent.width * 0.7; text: root.sentence + " " + root.sentence }
            TextLabel { anchors.left: selectable.right; text: root.sentence }
        }
        Badge { anchors.left: parent.left; count: 12 }
        PictureLabel { anchors.left: parent.left; text: root.action }
        Repeater {
            model: Object.values(root.words)

            Row {
                id: foreign

                required property var modelData

                anchors.left: parent.left
                spacing: Theme.space2

                TextLabel { text: foreign.modelData[0]; type: Theme.type.section }
                TextLabel { text: foreign.modelData[0] + " Hx"; type: Theme.type.captionStrong }
            }
        }
    }
}
