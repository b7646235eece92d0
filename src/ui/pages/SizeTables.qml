pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The tables of sizes of a piece, in the unit the shopper prefers.
Column {
    id: tables

    property ProductModel product

    readonly property var all: product ? product.sizeTables : []
    readonly property int tablesAtOnce: 3
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
            anchors.rightMargin: units.visible ? Theme.space2 : 0
            title: qsTranslate("Loomstreet", "Size table")
        }
        SegmentedControl {
            id: units

            objectName: "units"
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            visible: tables.product ? tables.product.hasSizeUnits : false
            name: qsTranslate("Loomstreet", "Unit of sizes")
            segments: [qsTranslate("Loomstreet", "cm"), qsTranslate("Loomstreet", "in", "unit.inch")]
            currentIndex: tables.product && tables.product.isMetric ? 0 : 1
            onActivated: index => tables.product.isMetric = index === 0
        }
    }
    // By number: a table stays while the unit of its figures changes. More than a few are made between frames.
    Repeater {
        model: tables.all.length

        Loader {
            required property int index

            asynchronous: tables.all.length > tables.tablesAtOnce
            Component.onCompleted: setSource("SizeTable.qml", { tables: tables, number: index })
        }
    }
}
