pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// The colours a piece comes in: four at most, each with a ring that keeps pale ones apart from the page.
Row {
    id: dots

    property var colours: []
    // Where the colours are not known: a picture of the piece in each, of which a dot shows the middle.
    property var pictures: []
    property color backdrop: Theme.paper
    property string names // for assistive tools: the colours in words

    readonly property int most: 4
    // Dots once made stay, and are hidden where there are fewer colours: cards in a list are given other pieces all
    // the time.
    property int made: 0

    readonly property color ring: Qt.alpha(Theme.ink, Theme.dark ? 0.4 : 0.2)

    spacing: 5
    onPicturesChanged: made = Math.max(made, Math.min(most, pictures.length))

    Accessible.role: Accessible.StaticText
    Accessible.name: names
    Accessible.ignored: names === ""

    Repeater {
        model: dots.colours.slice(0, dots.most)

        Rectangle {
            required property color modelData

            width: 11
            height: 11
            radius: 5.5
            color: modelData
            border.width: Theme.strokeHairline
            border.color: dots.ring
        }
    }
    Repeater {
        model: dots.made

        Item {
            id: dot

            required property int index
            readonly property string address: dots.pictures[index] ?? ""

            width: 11
            height: 11
            visible: address !== ""

            Image {
                anchors.fill: parent
                asynchronous: true
                source: PictureAddress.at(dot.address, 1)
                sourceSize.width: 32
                // A little left of the middle and below it is cloth in nearly every picture of a piece: trouser legs
                // part in the middle, bags hang lower, and the edges are ground.
                sourceClipRect: Qt.rect(12, 24, 5, 5)
            }
            // The corners: a thick ring in the colour of the page, whose inner edge is the dot's.
            Rectangle {
                anchors { fill: parent; margins: -3 }
                radius: width / 2
                color: "transparent"
                border { width: 3; color: dots.backdrop }
            }
            Rectangle {
                anchors.fill: parent
                radius: width / 2
                color: "transparent"
                border { width: Theme.strokeHairline; color: dots.ring }
            }
        }
    }
}
