import QtQuick
import Loomstreet.Theme
import Loomstreet.Components

Row {
    id: root

    property var board: ({ say: (english, arabic) => english })

    readonly property real columnWidth: (width - 2 * spacing) / 3

    spacing: Theme.space4

    Column {
        width: root.columnWidth
        spacing: Theme.space3

        BoardSection {
            width: parent.width
            title: "PushButton"

            Repeater {
                model: ["primary", "secondary", "quiet"]

                Flow {
                    required property string modelData

                    width: root.columnWidth
                    spacing: Theme.space1_5

                    PushButton {
                        kind: parent.modelData
                        size: "primary"
                        text: root.board.say("Add to Cart", "أضف إلى السلة")
                    }
                    PushButton { kind: parent.modelData; text: root.board.say("Apply", "تطبيق") }
                    PushButton { kind: parent.modelData; size: "small"; text: root.board.say("Preview", "معاينة") }
                    PushButton { kind: parent.modelData; text: root.board.say("Disabled", "معطل"); enabled: false }
                }
            }
            PushButton {
                kind: "primary"
                size: "primary"
                iconName: "lock"
                text: root.board.say("Checkout", "الدفع")
            }
            PushButton { kind: "primary"; busy: true; text: root.board.say("Opening checkout…", "جارٍ الفتح…") }
            PushButton { iconName: "sparkles"; text: root.board.say("Help me style this", "ساعدني في التنسيق") }
            PushButton {
                on: true
                iconName: "sparkles"
                text: root.board.say("Help me style this", "ساعدني في التنسيق")
            }
            PushButton {
                id: first
                text: root.board.say("Focused", "مركّز")
                FocusRing { target: null; visible: true }
            }
        }
        BoardSection {
            width: parent.width
            title: "IconButton, LinkButton"

            IconButton { iconName: "chevron.left"; text: "Back" }
            IconButton { iconName: "chevron.right"; text: "Forward"; enabled: false }
            IconButton { iconName: "arrow.clockwise"; text: "Reload" }
            IconButton { iconName: "bell"; badge: 4; text: "Notifications" }
            IconButton { iconName: "bag"; badge: 120; text: "Bag" }
            IconButton { iconName: "sparkles"; on: true; text: "Mira" }
            IconButton { iconName: "open.tab"; text: "Open in a tab"; FocusRing { target: null; visible: true } }
            IconButton { iconName: "heart"; kind: "outlined"; extent: 48; text: "Save" }
            IconButton { iconName: "arrow.up"; kind: "accent"; radius: 16; text: "Send" }
            LinkButton { text: root.board.say("Clear All Filters", "مسح كل عوامل التصفية") }
            LinkButton { text: root.board.say("Size table", "جدول المقاسات"); enabled: false }
        }
        BoardSection {
            width: parent.width
            title: "Chip"

            Chip { iconName: "sliders"; text: root.board.say("Filters · 3", "تصفية · 3") }
            Chip { selected: true; removable: true; text: root.board.say("Size: M", "المقاس: M") }
            Chip { selected: true; removable: true; text: "$100 – $300" }
            Chip { text: root.board.say("Dresses", "فساتين") }
            Chip { selected: true; text: root.board.say("All · 4", "الكل · 4") }
            Chip { text: root.board.say("True to size", "مطابق للمقاس"); note: "86" }
            Chip { text: root.board.say("Disabled", "معطل"); enabled: false }
            Chip { compact: true; selected: true; removable: true; iconName: "cloud"; text: "14 °C · Lisbon" }
        }
    }
    Column {
        width: root.columnWidth
        spacing: Theme.space3

        BoardSection {
            width: parent.width
            title: "SizeButton, Swatch, ColourDots"

            Row {
                spacing: Theme.space1

                Repeater {
                    model: ["XXS", "XS", "S", "M", "L", "38 ½"]

                    SizeButton {
                        required property string modelData

                        text: modelData
                        selected: modelData === "M"
                        soldOut: modelData === "L"
                    }
                }
            }
            Row {
                spacing: Theme.space1_5

                Swatch { label: "Sage"; picture: "https://pictures.test/a"; selected: true }
                Swatch { label: "Ink"; picture: "https://pictures.test/b" }
                Swatch { label: "Rose"; picture: "https://pictures.test/c"; soldOut: true }
                Swatch { label: "Butter"; color: "#e5c77c" }
                Swatch { label: "Chalk"; color: "#f6f2ea"; selected: true; soldOut: true }
            }
            ColourDots { colours: ["#8fa48b", "#34302f", "#f6f2ea", "#a54b33", "#000000"] }
        }
        BoardSection {
            width: parent.width
            title: "FieldInput, SearchField"

            FieldInput {
                width: parent.width
                label: root.board.say("Email", "البريد الإلكتروني")
                text: "ines.marinho@example.com"
                confirmed: true
                message: root.board.say("We sent a code. It can take a minute to arrive.",
                                        "أرسلنا رمزًا. قد يستغرق دقيقة.")
            }
            FieldInput {
                width: parent.width
                placeholderText: root.board.say("Discount code", "رمز الخصم")
                text: "SPRING20"
                error: root.board.say("“SPRING20” doesn't apply to the items in your cart.",
                                      "لا ينطبق الرمز على السلة.")
            }
            FieldInput { width: parent.width; placeholderText: root.board.say("Discount code", "رمز الخصم") }
            FieldInput { width: parent.width; text: root.board.say("Disabled", "معطل"); enabled: false }
            SearchField {
                width: parent.width
                placeholderText: root.board.say("Search", "بحث")
                shortcut: "Ctrl K"
                resting: Breadcrumb {
                    crumbs: [root.board.say("Women", "نساء"), root.board.say("Dresses", "فساتين")]
                }
                IconButton { iconName: "camera"; text: "Search by Image…" }
            }
            SearchField { width: parent.width; text: root.board.say("silk dr", "حرير") }
        }
        BoardSection {
            width: parent.width
            title: "SegmentedControl, Stepper"

            SegmentedControl { segments: ["cm", "in"] }
            SegmentedControl {
                segments: [
                    root.board.say("System", "النظام"),
                    root.board.say("Light", "فاتح"),
                    root.board.say("Dark", "داكن")
                ]
                currentIndex: 1
            }
            Stepper { value: 1 }
            Stepper { value: 12 }
            Stepper { value: 99; enabled: false }
        }
    }
    Column {
        width: root.columnWidth
        spacing: Theme.space3

        BoardSection {
            width: parent.width
            title: "SwitchRow, RadioRow"

            SwitchRow {
                width: parent.width
                checked: true
                text: root.board.say("In the application", "داخل التطبيق")
            }
            SwitchRow {
                width: parent.width
                text: root.board.say("Order updates", "تحديثات الطلب")
                note: root.board.say("Order confirmed, shipped and delivered", "تأكيد الطلب وشحنه وتسليمه")
            }
            SwitchRow { width: parent.width; text: root.board.say("Disabled", "معطل"); enabled: false; checked: true }
            RadioRow { width: parent.width; checked: true; text: root.board.say("Standard", "عادي") }
            RadioRow {
                width: parent.width
                text: root.board.say("Express", "سريع")
                note: root.board.say("Two working days", "يومان")
            }
        }
        BoardSection {
            width: parent.width
            title: "FactRow, Disclosure"

            FactRow {
                width: parent.width
                iconName: "truck"
                title: root.board.say("FREE worldwide shipping", "شحن مجاني")
                note: root.board.say("On carts of $99.00 or more", "للسلال من $99.00")
            }
            FactRow {
                width: parent.width
                iconName: "return"
                title: root.board.say("Returns", "الإرجاع")
                note: root.board.say("Within 30 days, unworn, tags on", "خلال 30 يومًا")
            }
            Disclosure {
                width: parent.width
                title: root.board.say("Composition", "التركيب")
                expanded: true

                TextLabel {
                    width: parent.width
                    text: root.board.say("92 % silk, 8 % elastane. Lining 100 % viscose. Dry clean only.",
                                         "92 % حرير، 8 % إيلاستين. تنظيف جاف فقط.")
                    type: Theme.type.small
                    wrapMode: Text.Wrap
                }
            }
            Disclosure { width: parent.width; title: root.board.say("Highlights", "أبرز الميزات") }
        }
        BoardSection {
            width: parent.width
            title: "Meter, StarRating, PriceLabel, KeyHint"

            Meter { width: parent.width; value: 0.88 }
            StarRating { value: 4.7; note: "4.7 (212)" }
            StarRating { value: 4.7; note: "4.7 (212)"; compact: true }
            PriceLabel { price: "$248.00" }
            PriceLabel { price: "$193.20"; formerPrice: "$276.00" }
            PriceLabel { price: "$41.00"; formerPrice: "$58.00"; formerFirst: true }
            PriceLabel { price: root.board.say("$248.00", "930.00 ر.س"); type: Theme.type.priceLarge }
            KeyHint { text: "Enter" }
            Spinner {}
        }
    }
}
