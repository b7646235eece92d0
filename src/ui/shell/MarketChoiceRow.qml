import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A country or a language in the picker. The field above the list keeps the focus.
Item {
    id: row

    required property int index
    required property string title
    required property string note
    required property bool isCurrent
    property bool highlighted: false

    signal chosen()

    implicitHeight: 36

    Accessible.role: Accessible.ListItem
    Accessible.name: note === "" ? title : title + ", " + note
    Accessible.selected: highlighted
    Accessible.checkable: true
    Accessible.checked: isCurrent
    Accessible.onPressAction: row.chosen()

    Rectangle {
        anchors.fill: parent
        radius: Theme.radiusControl
        color: row.highlighted ? Theme.accentTint : area.containsMouse ? Theme.hover : "transparent"
    }
    MouseArea {
        id: area

        anchors.fill: parent
        hoverEnabled: true
        cursorShape: Qt.PointingHandCursor
        onClicked: row.chosen()
    }
    Icon {
        id: mark

        anchors { left: parent.left; leftMargin: Theme.space1; verticalCenter: parent.verticalCenter }
        name: row.isCurrent ? "checkmark" : ""
        size: 16
        color: Theme.accent
    }
    TextLabel {
        anchors { left: mark.right; leftMargin: Theme.space1; right: note.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
        text: row.title
        type: row.isCurrent ? Theme.type.label : Theme.type.small
        Accessible.ignored: true
    }
    TextLabel {
        id: note

        anchors { right: parent.right; rightMargin: Theme.space1_5; verticalCenter: parent.verticalCenter }
        width: Math.min(implicitWidth, row.width / 2)
        text: row.note
        type: Theme.type.caption
        figures: true
        color: Theme.muted
        Accessible.ignored: true
    }
}
