import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// The promotion that is on: its words, the way to it, and its picture at the end.
Rectangle {
    id: banner

    // A ShownPromo; nothing while there is none.
    property var promo
    property bool narrow: false

    // Without a word and without a picture it would be an empty box.
    readonly property bool filled: pictured || (promo?.title ?? "") !== ""
    readonly property bool pictured: (promo?.image ?? "") !== ""
    readonly property int inset: narrow ? Theme.space2 : Theme.space4

    signal opened()

    implicitHeight: Math.max(Theme.cardPromotionHeight, words.implicitHeight + 2 * inset)
    visible: filled
    radius: Theme.radiusPicture
    color: Theme.sunken

    Column {
        id: words

        anchors { left: parent.left; verticalCenter: parent.verticalCenter; leftMargin: banner.inset }
        width: (banner.pictured ? parent.width - picture.width : parent.width) - 2 * banner.inset
        spacing: Theme.space1

        TextLabel {
            objectName: "promoTitle"
            width: parent.width
            text: banner.promo?.title ?? ""
            type: banner.narrow ? Theme.type.heading : Theme.type.title
            wrapMode: Text.Wrap
            maximumLineCount: 2
            Accessible.role: Accessible.Heading
        }
        TextLabel {
            objectName: "promoSubtitle"
            width: parent.width
            visible: text !== ""
            text: banner.promo?.subtitle ?? ""
            color: Theme.muted
            wrapMode: Text.Wrap
            maximumLineCount: 2
        }
        Item {
            width: 1
            height: Theme.spaceHalf
        }
        PushButton {
            objectName: "promo"
            anchors.left: parent.left
            kind: "primary"
            text: qsTranslate("Loomstreet", "Discover", "home.promo.button")
            accessibleName: text + ": " + (banner.promo?.title ?? "")
            onClicked: banner.opened()
        }
    }
    Picture {
        id: picture

        anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
        // Garments stand upright: a wider frame would show no more than a collar.
        width: banner.pictured ? Math.min(Math.round(banner.height * 4 / 3), Math.round(parent.width * 0.46)) : 0
        visible: banner.pictured
        ratio: width > 0 ? width / banner.height : 1
        address: banner.promo?.image ?? ""

        // The way for those who point; for others it is the button.
        MouseArea {
            anchors.fill: parent
            cursorShape: Qt.PointingHandCursor
            onClicked: banner.opened()
        }
    }
}
