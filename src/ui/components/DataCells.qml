pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Theme

// The cells of a row of a table, each below those of the same column.
Row {
    id: cells

    property var texts: []
    property var widths: [] // of the columns
    property TypeStyle type: Theme.type.small
    property int rowHeight: type.line
    property int inset: 0
    property bool marked: false
    property color color: Theme.ink

    // By number: a cell stays while what it says changes.
    Repeater {
        model: cells.texts.length

        TextLabel {
            required property int index

            objectName: "cell" + index
            width: cells.widths[index] ?? 0
            height: cells.rowHeight
            leftPadding: cells.inset
            rightPadding: cells.inset
            text: cells.texts[index] ?? ""
            type: cells.type
            figures: true
            elide: Text.ElideNone
            font.weight: cells.marked ? Font.DemiBold : type.weight
            color: cells.color
            horizontalAlignment: index === 0 ? Text.AlignLeft : Text.AlignRight
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }
    }
}
