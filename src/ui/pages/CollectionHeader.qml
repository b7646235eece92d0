pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The head of a collection: its name, how many pieces it has, and the order they stand in.
Item {
    id: header

    property CollectionModel collection
    property bool narrow: false

    readonly property var sorts: collection ? collection.sortLabels : []

    implicitHeight: Theme.space3 + Math.max(title.implicitHeight, sort.implicitHeight) + Theme.space3

    SectionHeader {
        id: title

        anchors { left: parent.left; right: sort.left; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }
        type: header.narrow ? Theme.type.heading : Theme.type.title
        title: header.collection ? header.collection.title : ""
        note: {
            const count = header.collection ? header.collection.totalCount : -1
            return count < 0 ? "" : count === 1 ? qsTranslate("Loomstreet", "1 piece")
                                                : qsTranslate("Loomstreet", "%1 pieces").arg(count)
        }
    }
    Pressable {
        id: sort

        objectName: "sort"
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        horizontalPadding: Theme.space1
        text: header.sorts[header.collection?.sort ?? 0] ?? ""
        accessibleName: qsTranslate("Loomstreet", "Sort: %1").arg(text)
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
                model: header.sorts

                MenuItem {
                    required property string modelData
                    required property int index

                    objectName: "sort." + index
                    text: modelData
                    checkable: true
                    checked: header.collection ? header.collection.sort === index : false
                    onTriggered: {
                        header.collection.sort = index
                        // The press itself has turned the mark around.
                        checked = Qt.binding(() => header.collection ? header.collection.sort === index : false)
                    }
                }
            }
        }
    }
}
