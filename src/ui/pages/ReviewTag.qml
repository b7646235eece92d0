import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A word buyers use of a piece, and how many did. It only tells; nothing happens when it is pressed.
Rectangle {
    id: tag

    property string text
    property int count: 0

    implicitWidth: words.implicitWidth + 2 * Theme.space1_5
    implicitHeight: Math.max(28, words.implicitHeight + Theme.spaceHalf)
    radius: height / 2
    color: "transparent"
    border { width: Theme.strokeHairline; color: Theme.hairline }

    Accessible.role: Accessible.StaticText
    Accessible.name: count > 0 ? text + ", " + count : text

    Row {
        id: words

        anchors.centerIn: parent
        spacing: Theme.spaceHalf + 2

        TextLabel {
            text: tag.text
            type: Theme.type.label
            Accessible.ignored: true
        }
        TextLabel {
            visible: tag.count > 0
            text: tag.count
            type: Theme.type.label
            figures: true
            color: Theme.muted
            Accessible.ignored: true
        }
    }
}
