pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// The shopper's tools, and the ways to them.
PageBase {
    id: page

    readonly property var tools: context.model

    title: qsTranslate("Loomstreet", "Tools", "tools.title")
    settled: tools !== null
    flickable: flick

    function takeFocus(): void { flick.forceActiveFocus() }

    Flickable {
        id: flick

        objectName: "flick"
        anchors.fill: parent
        visible: page.tools ? page.tools.count > 0 : false
        contentHeight: column.height + Theme.space3 + Theme.space8
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar {}

        FocusFollower { flickable: flick }

        Column {
            id: column

            anchors { left: parent.left; right: parent.right; top: parent.top; leftMargin: page.padding; rightMargin: page.padding; topMargin: Theme.space3 }
            spacing: Theme.space3

            SectionHeader {
                width: parent.width
                type: page.narrow ? Theme.type.heading : Theme.type.title
                title: page.title
            }
            Grid {
                id: grid

                readonly property int room: column.width + 2 * Theme.space1

                // What is pressed reaches a little beyond the words, which stand in line with the page.
                anchors { left: parent.left; leftMargin: -Theme.space1 }
                columns: Math.max(1, Math.min(3, Math.floor((room + columnSpacing) / (320 * Theme.textScale + columnSpacing))))
                columnSpacing: Theme.space3
                rowSpacing: 0

                Repeater {
                    model: page.tools

                    // Texts are asked of the model each time: those of the store may replace the window's own.
                    AccountWay {
                        required property var model

                        objectName: "tool." + model.key
                        width: Math.floor((grid.room - (grid.columns - 1) * grid.columnSpacing) / grid.columns)
                        iconName: model.symbol
                        text: model.title
                        note: model.note
                        onClicked: page.router.openTool(model.key, model.title)
                    }
                }
            }
        }
    }
    EmptyState {
        objectName: "empty"
        anchors.centerIn: parent
        visible: page.tools ? page.tools.count === 0 : false
        width: Math.min(parent.width, 480)
        iconName: "square.grid.2x2"
        title: qsTranslate("Loomstreet", "Nothing here yet")
        sentence: qsTranslate("Loomstreet", "There are no tools at the moment.")

        PushButton {
            text: qsTranslate("Loomstreet", "Explore")
            onClicked: page.router.selectItem(0)
        }
    }
}
