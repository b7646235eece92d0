pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What a list is narrowed by, as chips that take it back, the way to more of it, and the order. In narrow windows the
// chips that do not fit into one line are only counted.
Item {
    id: bar

    property ProductListing listing
    property bool narrow: false
    property bool filtersOpen: false

    readonly property FilterModel filters: listing ? listing.filters : null
    readonly property int chosen: filters ? filters.selectedCount : 0
    // How many chips stand beside the others in one line.
    readonly property int fitting: {
        let room = made && narrow ? flow.width - opener.width - clearing.implicitWidth - 2 * flow.spacing : Infinity
        let count = 0
        for (; count < chips.count; ++count) {
            room -= (chips.itemAt(count)?.width ?? 0) + flow.spacing
            if (room < 0)
                break
        }
        return count
    }
    property int made: 1 // counts the chips, which are new with every choice

    signal filtersAsked()

    function focusFilters(): void { opener.forceActiveFocus(Qt.OtherFocusReason) }
    function remove(chip: int, filterID: string, valueID: string): void {
        const hadFocus = chips.itemAt(chip).activeFocus
        filters.removeChip(filterID, valueID)
        if (!hadFocus)
            return
        const next = chips.itemAt(Math.min(chip, chips.count - 1))
        if (next !== null && next.visible)
            next.forceActiveFocus(Qt.TabFocusReason)
        else
            opener.forceActiveFocus(Qt.TabFocusReason)
    }
    function clear(): void {
        opener.forceActiveFocus(Qt.OtherFocusReason)
        filters.clear()
    }
    implicitHeight: Math.max(Theme.targetMinimum, flow.implicitHeight)

    Flow {
        id: flow

        anchors { left: parent.left; right: end.left; rightMargin: Theme.space2 }
        spacing: Theme.space1

        Chip {
            id: opener

            objectName: "filters"
            visible: bar.chosen > 0 || (bar.filters?.count ?? 0) > 0
            iconName: "sliders"
            text: bar.chosen > 0 ? qsTranslate("Loomstreet", "Filters") + " · " + bar.chosen
                                 : qsTranslate("Loomstreet", "Filters")
            onClicked: bar.filtersAsked()
            Accessible.description: bar.filtersOpen ? qsTranslate("Loomstreet", "Expanded")
                                                    : qsTranslate("Loomstreet", "Collapsed")
        }
        Repeater {
            id: chips

            model: bar.filters ? bar.filters.chips : []
            onItemAdded: ++bar.made

            Chip {
                required property var modelData
                required property int index

                objectName: "chip." + index
                width: Math.min(implicitWidth, 240)
                visible: index < bar.fitting
                selected: true
                removable: true
                text: modelData.label
                onClicked: bar.remove(index, modelData.filterID, modelData.valueID)
            }
        }
        LinkButton {
            id: clearing

            objectName: "clear"
            visible: bar.chosen > 0
            text: qsTranslate("Loomstreet", "Clear All Filters")
            onClicked: bar.clear()
        }
    }
    Row {
        id: end

        anchors.right: parent.right
        spacing: Theme.space1

        // What comes soon needs no word. The room is kept, or the chips would move.
        Item {
            width: 16
            height: parent.height

            Spinner {
                anchors.centerIn: parent
                running: late.elapsed
            }
        }
        SortButton { listing: bar.listing }
    }
    Timer {
        id: late

        property bool elapsed: false

        interval: 400
        running: (bar.listing?.isLoading ?? false) && !elapsed
        onTriggered: elapsed = true
    }
    Connections {
        target: bar.listing
        function onChanged(): void { if (!bar.listing.isLoading) late.elapsed = false }
    }
}
