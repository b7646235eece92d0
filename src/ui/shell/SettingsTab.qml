import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// One page of the settings in their list.
Pressable {
    id: tab

    property string iconName
    property bool selected: false

    activeFocusOnTab: false // the list takes the focus and hands it on
    Accessible.role: Accessible.PageTab
    Accessible.selected: selected

    contentItem: Item {
        Icon {
            id: icon

            anchors { left: parent.left; leftMargin: Theme.space1_5; verticalCenter: parent.verticalCenter }
            name: tab.iconName
            color: tab.selected ? Theme.accent : Theme.muted
        }
        TextLabel {
            anchors { left: icon.right; leftMargin: Theme.space1_5; right: parent.right; verticalCenter: parent.verticalCenter }
            text: tab.text
            type: Theme.type.label
            font.weight: tab.selected ? Font.DemiBold : type.weight
            Accessible.ignored: true
        }
    }
    background: Rectangle {
        implicitHeight: 36
        radius: Theme.radiusControl
        color: tab.selected ? Theme.surface : tab.hovered ? Theme.hover : "transparent"
        border { width: tab.selected ? Theme.strokeHairline : 0; color: Theme.hairline }

        FocusRing { target: tab }
    }
}
