import QtQuick

// The shadow of something that floats: how far it falls, how soft it is and its colour, opacity included.
QtObject {
    property int x: 0
    property int y: 0
    property int blur: 0
    property color color: "transparent"
}
