pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The order that a list stands in, and the menu of the others.
Pressable {
    id: sort

    // A list that knows its orders, or others to choose from.
    property ProductListing listing: null
    property var labels: listing ? listing.sortLabels : []
    property int current: listing ? listing.sort : 0

    signal chosen(int index)

    objectName: "sort"
    horizontalPadding: Theme.space1
    text: labels[current] ?? ""
    accessibleName: qsTranslate("Loomstreet", "Sort: %1").arg(text)
    onChosen: index => { if (listing) listing.sort = index }
    onClicked: menu.visible ? menu.close() : menu.open()

    contentItem: Row {
        spacing: Theme.space1

        TextLabel {
            anchors.verticalCenter: parent.verticalCenter
            text: sort.text
            type: Theme.type.label
            Accessible.ignored: true
        }
        Icon {
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.down"
            size: 16
        }
    }
    background: Rectangle {
        implicitHeight: Theme.targetMinimum
        radius: Theme.radiusControl
        color: sort.down ? Theme.pressed : sort.hovered || menu.visible ? Theme.hover : "transparent"

        FocusRing { target: sort }
    }

    Menu {
        id: menu

        y: sort.height + Theme.spaceHalf
        x: sort.mirrored ? 0 : sort.width - width

        Repeater {
            model: sort.labels

            MenuItem {
                required property string modelData
                required property int index

                objectName: "sort." + index
                text: modelData
                checkable: true
                checked: sort.current === index
                onTriggered: {
                    sort.chosen(index)
                    // The press itself has turned the mark around.
                    checked = Qt.binding(() => sort.current === index)
                }
            }
        }
    }
}
