import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A line of the suggestions: something to search for, or a collection. The search field keeps the focus.
Item {
    id: row

    required property string key
    required property string text
    required property int emphasisStart
    required property int emphasisLength
    required property bool isFilled
    required property bool isCurrent
    property string iconName: "magnifyingglass"
    property string spoken: text
    property bool leads: false
    property bool removable: false
    // Enter takes it, though no key has led to it.
    property bool isDefault: false

    signal opened(bool inNewTab)
    signal removed()

    implicitHeight: 36
    visible: isFilled

    Accessible.role: Accessible.ListItem
    Accessible.name: spoken
    Accessible.selected: isCurrent
    Accessible.ignored: !isFilled
    Accessible.onPressAction: row.opened(false)

    Rectangle {
        anchors.fill: parent
        radius: Theme.radiusControl
        color: row.isCurrent || row.isDefault ? Theme.accentTint : area.containsMouse ? Theme.hover : "transparent"
    }
    MouseArea {
        id: area

        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.LeftButton | Qt.MiddleButton
        cursorShape: Qt.PointingHandCursor
        onClicked: mouse => row.opened(mouse.button === Qt.MiddleButton || (mouse.modifiers & Qt.ControlModifier) !== 0)
    }
    Icon {
        id: icon

        anchors { left: parent.left; leftMargin: Theme.space1_5; verticalCenter: parent.verticalCenter }
        name: row.iconName
        size: 16
        color: Theme.muted
    }
    EmphasisedText {
        anchors { left: icon.right; leftMargin: Theme.space1_5; right: end.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
        plain: row.text
        start: row.emphasisStart
        length: row.emphasisLength
        Accessible.ignored: true
    }
    Row {
        id: end

        anchors { right: parent.right; rightMargin: row.removable ? Theme.spaceHalf - 2 : Theme.space1_5; verticalCenter: parent.verticalCenter }

        KeyHint {
            anchors.verticalCenter: parent.verticalCenter
            visible: (row.isCurrent || row.isDefault) && !row.removable && !row.leads
            text: qsTranslate("Loomstreet", "Enter")
        }
        Icon {
            anchors.verticalCenter: parent.verticalCenter
            visible: row.leads
            name: "chevron.right"
            size: 16
            color: Theme.muted
        }
        IconButton {
            objectName: "remove"
            visible: row.removable
            focusPolicy: Qt.NoFocus
            iconName: "xmark"
            iconSize: 16
            color: Theme.muted
            text: qsTranslate("Loomstreet", "Remove “%1” from recent searches").arg(row.text)
            showsToolTip: false
            onClicked: row.removed()
        }
    }
}
