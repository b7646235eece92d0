pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// Ways that belong together, under a heading, in as many columns as there is room for.
Column {
    id: group

    property string title
    property var ways: [] // {id, icon, title, note}

    signal chosen(string id)

    spacing: Theme.space1

    Overline {
        width: parent.width
        words: group.title
        color: Theme.muted
        Accessible.role: Accessible.Heading
    }
    Grid {
        id: grid

        readonly property int room: group.width + 2 * Theme.space1

        // What is pressed reaches a little beyond the words, which stand in line with the page.
        // All are as high as the highest, so that their lines meet.
        property real tallest: 0

        function measure(): void {
            let most = 0
            for (let i = 0; i < children.length; ++i)
                most = Math.max(most, children[i].implicitHeight)
            tallest = most
        }

        x: -Theme.space1
        width: room
        columns: Math.max(1, Math.min(4, Math.floor((room + columnSpacing) / (260 * Theme.textScale + columnSpacing))))
        columnSpacing: Theme.space3
        rowSpacing: 0

        Repeater {
            model: group.ways

            AccountWay {
                required property var modelData

                objectName: "way." + modelData.id
                width: Math.floor((grid.room - (grid.columns - 1) * grid.columnSpacing) / grid.columns)
                iconName: modelData.icon
                text: modelData.title
                note: modelData.note
                height: grid.tallest
                onImplicitHeightChanged: grid.measure()
                Component.onCompleted: grid.measure()
                onClicked: group.chosen(modelData.id)
            }
        }
    }
}
