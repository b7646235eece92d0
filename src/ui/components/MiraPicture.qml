import QtQuick
import Loomstreet.Theme

// The stylist, drawn, in a round frame.
Item {
    id: picture

    property int extent: 92

    implicitWidth: extent
    implicitHeight: extent

    Accessible.ignored: true

    Image {
        anchors.fill: parent
        sourceSize { width: picture.extent; height: picture.extent }
        source: "pictures/mira.svg"
    }
    Rectangle {
        anchors.fill: parent
        visible: Theme.alphaPictureDim < 1
        radius: width / 2
        color: "black"
        opacity: 1 - Theme.alphaPictureDim
    }
}
