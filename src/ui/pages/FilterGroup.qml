pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// One filter of a list: values as short as sizes stand beside each other, others below each other with the number of
// their pieces, and long lists show a few until all are asked for.
Disclosure {
    id: group

    required property FilterModel filters
    required property string filterID
    required property string label
    required property FilterValuesModel values

    readonly property int rows: 8
    readonly property int rowHeight: Math.max(Theme.targetMinimum, Theme.type.label.line + Theme.space1)
    // So many that one looks for one rather than through all.
    readonly property bool isLong: values.total > 20

    objectName: "filter." + filterID
    title: label
    expanded: true

    Flow {
        width: parent.width
        visible: group.values.isCompact
        spacing: Theme.space1

        Repeater {
            id: chips

            model: group.values.isCompact ? group.values : null

            Chip {
                required property string valueID
                required property string label
                required property int pieces
                required selected

                objectName: "value." + valueID
                enabled: selected || pieces > 0
                text: label
                checkable: false
                accessibleName: qsTranslate("Loomstreet", "%1, %Ln pieces", "", pieces).arg(label)
                onClicked: group.filters.toggle(group.filterID, valueID)
                Accessible.role: Accessible.CheckBox
                Accessible.checkable: true
            }
        }
    }
    FieldInput {
        objectName: "find"
        width: parent.width
        visible: group.values.isExpanded && group.isLong
        placeholderText: qsTranslate("Loomstreet", "Find in %1").arg(group.label)
        text: group.values.search
        onEdited: text => { group.values.search = text }
    }
    ListView {
        id: list

        objectName: "values"
        width: parent.width
        height: Math.min(contentHeight, group.rows * group.rowHeight)
        visible: !group.values.isCompact
        model: group.values.isCompact ? null : group.values
        reuseItems: true
        clip: true
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: true
        highlightMoveDuration: 0
        ScrollBar.vertical: ScrollBar {}

        delegate: CheckRow {
            required property int index
            required property string valueID
            required property string label
            required property int pieces
            required selected

            objectName: "value." + valueID
            width: ListView.view.width - (list.interactive ? Theme.space1_5 : 0)
            height: group.rowHeight
            focus: ListView.isCurrentItem
            activeFocusOnTab: ListView.isCurrentItem
            opacity: selected || pieces > 0 ? 1 : Theme.alphaDisabled
            text: label
            note: pieces
            accessibleName: qsTranslate("Loomstreet", "%1, %Ln pieces", "", pieces).arg(label)
            // One without pieces can be passed by the arrows, but not chosen.
            locked: !selected && pieces === 0
            onClicked: {
                list.currentIndex = index
                group.filters.toggle(group.filterID, valueID)
            }
        }
    }
    TextLabel {
        width: parent.width
        visible: group.values.isExpanded && list.count + chips.count === 0
        text: qsTranslate("Loomstreet", "Nothing by that name")
        type: Theme.type.small
        color: Theme.muted
    }
    LinkButton {
        objectName: "more"
        anchors.left: parent.left
        visible: group.values.hiddenCount > 0 || group.values.isExpanded
        text: group.values.isExpanded ? qsTranslate("Loomstreet", "Show fewer")
                                      : qsTranslate("Loomstreet", "Show all %Ln", "", group.values.total)
        accessibleName: group.label + ": " + text
        onClicked: group.values.isExpanded = !group.values.isExpanded
    }
}
