pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Theme

// A row of a table below its headings.
Rectangle {
    id: line

    required property DataTable table
    required property int number

    readonly property var texts: table.rows[number] ?? []
    readonly property bool marked: number === table.markedRow

    objectName: "row" + number
    color: marked ? Theme.accentTint : "transparent"

    Accessible.role: Accessible.Row
    Accessible.name: table.sentence(texts)
    Accessible.selected: marked

    DataCells {
        texts: line.texts
        widths: line.table.cellWidths
        type: line.table.type
        rowHeight: line.table.rowHeight
        inset: line.table.inset
        marked: line.marked
    }
    Hairline {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
