import QtQuick
import Loomstreet.Theme

// A coat in an arch, for where the shopper is welcomed.
Item {
    id: picture

    property real radius: Theme.radiusPicture
    // Whether only the corners at its start are round, as at the side of a sheet.
    property bool square: false
    // What is higher has more ground above.
    property real mostHeight: height

    clip: true

    Accessible.ignored: true

    Rectangle {
        id: ground

        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
        width: parent.width + (picture.square ? radius : 0)
        radius: picture.radius
        color: "#EBDAD0"
    }
    Item {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: Math.min(parent.height, picture.mostHeight)
        clip: true

        Image {
            anchors { bottom: parent.bottom; horizontalCenter: parent.horizontalCenter }
            height: Math.max(parent.height, parent.width * 4 / 3)
            width: height * 3 / 4
            sourceSize { width: width; height: height }
            source: "pictures/coat.svg"
            asynchronous: true
        }
    }
    Rectangle {
        anchors.fill: ground
        visible: Theme.alphaPictureDim < 1
        radius: picture.radius
        color: "black"
        opacity: 1 - Theme.alphaPictureDim
    }
}
