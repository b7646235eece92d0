import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A piece among the suggestions: its picture, who designed it, what it is called. The search field keeps the focus.
Item {
    id: piece

    required property string key
    required property string text
    required property string vendor
    required property string picture
    required property bool isFilled
    required property bool isCurrent

    signal opened(bool inNewTab)

    implicitHeight: image.height + Theme.space1 + words.height
    visible: isFilled

    Accessible.role: Accessible.ListItem
    Accessible.name: vendor === "" ? text : text + ", " + vendor
    Accessible.selected: isCurrent
    Accessible.ignored: !isFilled
    Accessible.onPressAction: piece.opened(false)

    Picture {
        id: image

        width: parent.width
        height: Math.round(width / Theme.cardPictureRatio)
        backdrop: Theme.surface
        address: piece.picture
    }
    Column {
        id: words

        anchors { left: parent.left; right: parent.right; top: image.bottom; topMargin: Theme.space1 }

        TextLabel {
            width: parent.width
            height: type.line
            text: piece.vendor
            type: Theme.type.overline
            color: Theme.muted
            Accessible.ignored: true
        }
        TextLabel {
            width: parent.width
            text: piece.text
            type: Theme.type.small
            font.underline: area.containsMouse
            Accessible.ignored: true
        }
    }
    Rectangle {
        anchors { fill: image; margins: -4 }
        visible: piece.isCurrent
        color: "transparent"
        radius: Theme.radiusPicture + 4
        border { width: Theme.strokeSelected; color: Theme.accent }
    }
    MouseArea {
        id: area

        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.LeftButton | Qt.MiddleButton
        cursorShape: Qt.PointingHandCursor
        onClicked: mouse => piece.opened(mouse.button === Qt.MiddleButton || (mouse.modifiers & Qt.ControlModifier) !== 0)
    }
}
