import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A destination, with the heading or the line above it.
FocusScope {
    id: row

    required property int index
    required property var model
    required property string symbol
    required property bool hasLine
    required property string rawValue
    // Asked of the model each time: the store's own texts may replace those of the window.
    readonly property string title: model.title
    readonly property string heading: model.heading
    property bool rail: false
    property bool selected: false
    property int count: 0
    property string countText: String(row.count)

    signal chosen()

    implicitHeight: control.y + control.height

    // Few rows have a heading or a line above them.
    Loader {
        id: heading

        anchors { left: parent.left; leftMargin: 20 }
        active: row.heading !== "" && !row.rail
        sourceComponent: Overline {
            height: Theme.layoutSidebarHeading
            verticalAlignment: Text.AlignVCenter
            words: row.heading // qmllint disable unqualified
            color: Theme.muted
            Accessible.role: Accessible.Heading
        }
    }
    Loader {
        id: line

        anchors { left: parent.left; right: parent.right; leftMargin: row.rail ? Theme.space2 : 20; rightMargin: row.rail ? Theme.space2 : 20 }
        y: 7
        active: row.hasLine || (row.rail && row.heading !== "" && row.index > 0)
        sourceComponent: Hairline {}
    }
    Pressable {
        id: control

        objectName: "section." + row.rawValue
        anchors { left: parent.left; right: parent.right; leftMargin: Theme.space1; rightMargin: Theme.space1 }
        y: heading.active ? Theme.layoutSidebarHeading : line.active ? 15 : 0
        height: Math.max(Theme.layoutSidebarRow, label.implicitHeight + Theme.space1)
        focus: true
        activeFocusOnTab: false // the list takes the focus and hands it on
        text: row.title
        onClicked: row.chosen()

        Accessible.role: Accessible.ListItem
        Accessible.selected: row.selected
        Accessible.description: row.count > 0 ? row.count : ""

        contentItem: Item {
            Icon {
                id: icon

                anchors { left: parent.left; leftMargin: row.rail ? (parent.width - width) / 2 : Theme.space1_5; verticalCenter: parent.verticalCenter }
                name: row.symbol
                color: row.selected ? Theme.accent : Theme.muted
            }
            TextLabel {
                id: label

                anchors { left: icon.right; leftMargin: Theme.space1_5; right: count.left; verticalCenter: parent.verticalCenter }
                visible: !row.rail
                text: row.title
                type: Theme.type.label
                wrapMode: row.rail ? Text.NoWrap : Text.WordWrap
                maximumLineCount: 2
                font.weight: row.selected ? Font.DemiBold : type.weight
                Accessible.ignored: true
            }
            Loader {
                id: count

                anchors { right: parent.right; rightMargin: Theme.space1_5; verticalCenter: parent.verticalCenter }
                active: row.count > 0 && !row.rail
                sourceComponent: TextLabel {
                    objectName: "count"
                    text: row.countText // qmllint disable unqualified
                    elide: Text.ElideNone
                    type: Theme.type.small
                    figures: true
                    color: Theme.muted
                    Accessible.ignored: true
                }
            }
        }
        background: Rectangle {
            radius: Theme.radiusControl
            color: row.selected ? Theme.paper : control.down ? Theme.pressed : control.hovered ? Theme.hover : "transparent"
            border { width: row.selected ? Theme.strokeHairline : 0; color: Theme.hairline }

            FocusRing { target: control }
        }
        HoverToolTip {
            control: control
            text: row.rail ? row.title : ""
        }
    }
}
