import QtQuick
import Loomstreet.Theme

// What a card shows under the pointer: the sizes there are, and the way to the full page.
Item {
    id: bar

    required property ProductCard card
    readonly property bool reached: open.activeFocus

    opacity: card.lively ? 1 : 0
    visible: opacity > 0
    implicitHeight: Math.max(36, label.implicitHeight + Theme.space1)

    Behavior on opacity { NumberAnimation { duration: Theme.durationHover } }

    FloatingSurface {
        anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
        // Without sizes it is no more than its button.
        width: bar.card.sizes.length > 0 ? parent.width : parent.height
        shadow: Theme.shadowLifted
    }
    TextLabel {
        id: label

        objectName: "sizes"
        anchors { left: parent.left; right: line.left; verticalCenter: parent.verticalCenter }
        anchors.leftMargin: Theme.space2
        anchors.rightMargin: Theme.space1
        // Sizes keep their own direction, and follow each other in the page's.
        text: (LayoutMirroring.enabled ? "\u200f" : "") + bar.card.sizes.map(size => Bidi.isolate(size)).join("\u2003")
        type: Theme.type.label
        figures: true
    }
    Hairline {
        id: line

        anchors { right: open.left; verticalCenter: parent.verticalCenter }
        anchors.rightMargin: Theme.spaceHalf
        height: 16
        visible: bar.card.sizes.length > 0
    }
    IconButton {
        id: open

        objectName: "openFull"
        anchors { right: parent.right; rightMargin: 2; verticalCenter: parent.verticalCenter }
        iconName: "expand"
        iconSize: 16
        // A stop for the Tab key only where its card is one.
        focusPolicy: bar.card.activeFocusOnTab ? Qt.StrongFocus : Qt.ClickFocus
        text: qsTranslate("Loomstreet", "Open full page")
        onClicked: bar.card.openFull()
    }
}
