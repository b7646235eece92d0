pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// The index of designers: a letter at the side, their names in columns beside it. One name is reached with the Tab
// key, the others with the arrow keys.
ListView {
    id: designers

    property int padding: Theme.layoutPagePaddingRegular
    property bool narrow: false
    // The name that has the focus when the index has it.
    property int currentSection: 0
    property int currentName: 0
    property int jumped: -1

    readonly property int columns: Math.max(1, Math.floor((width - 2 * padding - letterWidth) / (232 * Theme.textScale)))
    readonly property int letterWidth: narrow ? 48 : 96
    // Looked up anew when the height is: what is listed is laid out later than it is counted.
    readonly property int topRow: {
        const row = jumped >= 0 ? jumped : contentHeight > 0 ? indexAt(0, contentY + Theme.space4) : 0
        return Math.max(0, Math.min(row, count - 1))
    }

    signal opened(string name)

    function jumpTo(row: int): void {
        positionViewAtIndex(row, ListView.Beginning)
        jumped = row
        currentSection = row
        currentName = 0
    }
    function enter(): void {
        if (count > 0)
            focusName(Math.min(currentSection, count - 1), currentName)
    }
    // A negative name counts from the end of its section.
    function focusName(row: int, name: int): void {
        if (row < 0 || row >= count)
            return
        positionViewAtIndex(row, ListView.Contain)
        const section = itemAtIndex(row) as BrandsSection
        if (!section)
            return
        currentSection = row
        currentName = name < 0 ? section.brands.length - 1 : Math.min(name, section.brands.length - 1)
        const item = section.nameAt(currentName)
        item.forceActiveFocus(Qt.TabFocusReason)
        const top = item.mapToItem(contentItem, 0, 0).y
        contentY = Math.max(Math.min(contentY, top - Theme.space2), top + item.height + Theme.space2 - height)
    }

    objectName: "index"
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    keyNavigationEnabled: false
    cacheBuffer: 2400
    bottomMargin: Theme.space8
    ScrollBar.vertical: ScrollBar {}
    onMovementStarted: jumped = -1
    onCountChanged: {
        jumped = -1
        currentSection = 0
        currentName = 0
    }

    Keys.onDownPressed: enter()
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Home)
            focusName(0, 0)
        else if (event.key === Qt.Key_End)
            focusName(count - 1, -1)
        else
            return
        event.accepted = true
    }

    Accessible.role: Accessible.List
    Accessible.name: qsTranslate("Loomstreet", "Designers")

    delegate: BrandsSection {
        list: designers
        width: designers.width
        onOpened: name => designers.opened(name)
    }
}
