pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The tables of sizes of a piece, in the unit the shopper prefers.
Column {
    id: tables

    property ProductModel product

    // The chosen size, whose row is marked.
    readonly property string chosenSize: {
        for (const group of product ? product.options : []) {
            if (!group.isSwatch && group.selected !== "")
                return group.selected
        }
        return ""
    }

    spacing: Theme.space2

    Item {
        width: parent.width
        implicitHeight: Math.max(heading.implicitHeight, units.implicitHeight)

        SectionHeader {
            id: heading

            anchors { left: parent.left; right: units.visible ? units.left : parent.right; verticalCenter: parent.verticalCenter }
            title: qsTranslate("Loomstreet", "Size table")
        }
        SegmentedControl {
            id: units

            objectName: "units"
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            visible: tables.product ? tables.product.hasSizeUnits : false
            name: qsTranslate("Loomstreet", "Unit of sizes")
            segments: [qsTranslate("Loomstreet", "cm"), qsTranslate("Loomstreet", "in")]
            currentIndex: tables.product && tables.product.isMetric ? 0 : 1
            onActivated: index => tables.product.isMetric = index === 0
        }
    }
    Repeater {
        model: tables.product ? tables.product.sizeTables : []

        Column {
            id: section

            required property var modelData
            required property int index

            width: tables.width
            spacing: Theme.spaceHalf

            TextLabel {
                width: parent.width
                visible: text !== ""
                text: section.modelData.title
                type: Theme.type.label
                wrapMode: Text.Wrap
            }
            DataTable {
                objectName: "sizeTable" + section.index
                width: parent.width
                name: section.modelData.title !== "" ? section.modelData.title : qsTranslate("Loomstreet", "Size table")
                headings: section.modelData.columns
                rows: section.modelData.rows
                markedRow: tables.chosenSize === "" ? -1 : section.modelData.rows.findIndex(row => row[0] === tables.chosenSize)
            }
        }
    }
}
