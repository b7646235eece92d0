import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// One of the tables of sizes of a piece under its title.
Column {
    id: section

    required property SizeTables tables
    required property int number

    readonly property var table: tables.all[number] ?? ({ title: "", columns: [], rows: [] })

    width: tables.width
    spacing: Theme.spaceHalf

    TextLabel {
        width: parent.width
        visible: text !== ""
        text: section.table.title
        type: Theme.type.label
        wrapMode: Text.Wrap
    }
    DataTable {
        objectName: "sizeTable" + section.number
        width: parent.width
        name: section.table.title !== "" ? section.table.title : qsTranslate("Loomstreet", "Size table")
        headings: section.table.columns
        rows: section.table.rows
        markedRow: section.tables.chosenSize === "" ? -1 : section.table.rows.findIndex(row => row[0] === section.tables.chosenSize)
    }
}
