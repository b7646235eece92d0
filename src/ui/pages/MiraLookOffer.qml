import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// The way to all pieces of a message at once.
Item {
    id: offer

    property int pieces: 0

    signal asked()

    implicitHeight: button.height

    PushButton {
        id: button

        objectName: "look"
        anchors.left: parent.left
        size: "small"
        iconName: "bag"
        text: qsTranslate("Loomstreet", "Add to Cart")
        accessibleName: text + ": " + note.text
        onClicked: offer.asked()
    }
    TextLabel {
        id: note

        anchors { left: button.right; leftMargin: Theme.space1; right: parent.right; verticalCenter: parent.verticalCenter }
        text: qsTranslate("Loomstreet", "See the look: %Ln pieces, each in your size", "", offer.pieces)
        type: Theme.type.caption
        color: Theme.muted
        wrapMode: Text.Wrap
        maximumLineCount: 2
        Accessible.ignored: true
    }
}
