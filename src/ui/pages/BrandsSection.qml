pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// The designers below one letter.
Item {
    id: section

    required property int index
    required property string letter
    required property var brands
    required property var list

    readonly property int rows: Math.ceil(brands.length / list.columns)
    readonly property real columnWidth: Math.floor(names.width / list.columns)

    signal opened(string name)

    function nameAt(place: int): Item { return repeater.itemAt(place) }

    objectName: "section." + letter
    implicitHeight: names.height + 2 * Theme.space2

    TextLabel {
        anchors { left: parent.left; leftMargin: section.list.padding; top: names.top }
        text: section.letter
        type: Theme.type.heading
        color: Theme.muted
        Accessible.role: Accessible.Heading
    }
    Grid {
        id: names

        anchors { left: parent.left; right: parent.right; top: parent.top; topMargin: Theme.space2 }
        anchors { leftMargin: section.list.padding + section.list.letterWidth; rightMargin: section.list.padding }
        flow: Grid.TopToBottom
        rows: section.rows
        columns: section.list.columns

        Repeater {
            id: repeater

            model: section.brands

            BrandName {
                required property var modelData
                required property int index

                width: section.columnWidth
                name: modelData.name
                count: modelData.count
                current: section.index === section.list.currentSection && index === section.list.currentName
                onClicked: {
                    section.list.currentSection = section.index
                    section.list.currentName = index
                    section.opened(name)
                }

                function sideways(by: int): void {
                    const place = index + (LayoutMirroring.enabled ? -by : by) * section.rows
                    if (place >= 0 && place < section.brands.length)
                        section.list.focusName(section.index, place)
                }

                Keys.onLeftPressed: sideways(-1)
                Keys.onRightPressed: sideways(1)
                Keys.onUpPressed: {
                    if (index > 0)
                        section.list.focusName(section.index, index - 1)
                    else
                        section.list.focusName(section.index - 1, -1)
                }
                Keys.onDownPressed: {
                    if (index + 1 < section.brands.length)
                        section.list.focusName(section.index, index + 1)
                    else
                        section.list.focusName(section.index + 1, 0)
                }
            }
        }
    }
    Hairline {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        anchors { leftMargin: section.list.padding; rightMargin: section.list.padding }
        visible: section.index + 1 < section.list.count
    }
}
