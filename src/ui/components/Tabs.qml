pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Theme

// A few ways to go on, one at a time, each a word over a line. One stop for the Tab key; the arrows move within.
FocusScope {
    id: tabs

    property var titles: []
    property int currentIndex: 0
    property string name // for assistive tools

    signal activated(int index)

    function choose(index: int): void {
        if (index < 0 || index >= titles.length)
            return
        // The focus first: one that has it cannot cease to be a stop for the Tab key.
        const tab = repeater.itemAt(index) as Item
        tab.forceActiveFocus(Qt.TabFocusReason)
        if (index !== currentIndex)
            activated(index)
    }

    implicitWidth: row.implicitWidth
    implicitHeight: row.implicitHeight
    opacity: enabled ? 1 : Theme.alphaDisabled

    Accessible.role: Accessible.PageTabList
    Accessible.name: name

    Keys.onLeftPressed: choose(currentIndex + (LayoutMirroring.enabled ? 1 : -1))
    Keys.onRightPressed: choose(currentIndex + (LayoutMirroring.enabled ? -1 : 1))

    Hairline {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
    }
    Row {
        id: row

        // Long words stand closer, and on two lines, before one of them is cut.
        readonly property real gaps: tabs.titles.length - 1
        readonly property bool tight: tabs.width < wanted + gaps * Theme.space3
        property real wanted: 0

        function measure(): void {
            let sum = 0
            for (let i = 0; i < repeater.count; ++i)
                sum += repeater.itemAt(i)?.implicitWidth ?? 0
            wanted = sum
        }

        anchors.left: parent.left
        spacing: tight ? Theme.space1_5 : Theme.space3

        Repeater {
            id: repeater

            model: tabs.titles

            Choice {
                id: tab

                required property int index
                required property string modelData

                objectName: "tab" + index
                anchors.bottom: parent?.bottom
                width: Math.ceil(implicitWidth * Math.min(1, (tabs.width - row.gaps * (row.spacing + 1)) / row.wanted))
                onImplicitWidthChanged: row.measure()
                Component.onCompleted: row.measure()
                text: modelData
                selected: index === tabs.currentIndex
                opacity: 1
                focusPolicy: selected ? Qt.StrongFocus : Qt.ClickFocus
                topPadding: Theme.space1
                bottomPadding: Theme.space1
                onClicked: tabs.choose(index)
                contentItem: TextLabel {
                    text: tab.text
                    type: Theme.type.label
                    color: tab.selected || tab.hovered ? Theme.ink : Theme.muted
                    wrapMode: Text.Wrap
                    Accessible.ignored: true
                }
                background: Item {
                    Rectangle {
                        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
                        height: Theme.strokeSelected
                        color: Theme.accent
                        visible: tab.selected
                    }
                    FocusRing { target: tab }
                }

                Accessible.role: Accessible.PageTab
                Accessible.selected: selected
            }
        }
    }
}
