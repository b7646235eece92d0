pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Loomstreet.Theme

// Figures in rows and columns. The first column names the row, the others stand at the end with their digits below
// each other. It scrolls sideways where it does not fit.
Item {
    id: table

    property var headings: [] // texts
    property var rows: [] // lists of texts, one for each heading
    property int markedRow: -1
    property string name // for assistive tools
    property TypeStyle type: Theme.type.small

    readonly property int inset: Theme.space1
    readonly property var naturalWidths: measure(strong.font)
    readonly property int naturalWidth: naturalWidths.reduce((sum, width) => sum + width, 0)
    // What is left over is shared out evenly.
    readonly property real spare: headings.length > 0 ? Math.max(0, width - naturalWidth) / headings.length : 0
    readonly property var cellWidths: naturalWidths.map(natural => natural + spare)
    readonly property int rowHeight: type.line + 10
    readonly property int cellsAtOnce: 80

    // Takes the font that it measures with, so that another one has it measured again.
    function measure(font: font): var {
        return headings.map((heading, column) => {
            let widest = strong.advanceWidth(heading)
            for (const row of rows)
                widest = Math.max(widest, strong.advanceWidth(row[column] ?? ""))
            return Math.ceil(widest) + 2 * inset
        })
    }
    function sentence(row: var): string {
        return row.map((cell, column) => column === 0 ? cell : (headings[column] ?? "") + " " + cell).join(", ")
    }

    implicitWidth: naturalWidth
    implicitHeight: body.height + (flick.overflows ? Theme.space1 : 0)

    Accessible.role: Accessible.Table
    Accessible.name: name

    FontMetrics {
        id: strong

        font.family: Theme.fontFigures
        font.pixelSize: table.type.size
        font.weight: Font.DemiBold
    }

    Flickable {
        id: flick

        readonly property bool overflows: table.naturalWidth > table.width

        objectName: "scroll"
        anchors.fill: parent
        contentWidth: body.width
        contentHeight: body.height
        interactive: overflows
        clip: overflows
        boundsBehavior: Flickable.StopAtBounds
        flickableDirection: Flickable.HorizontalFlick
        activeFocusOnTab: overflows
        // It begins where reading does.
        onContentWidthChanged: contentX = LayoutMirroring.enabled ? Math.max(0, contentWidth - width) : 0
        T.ScrollBar.horizontal: ScrollBar {}
        Keys.onLeftPressed: contentX = Math.max(0, contentX - 40)
        Keys.onRightPressed: contentX = Math.min(contentWidth - width, contentX + 40)

        Column {
            id: body

            width: Math.max(table.width, table.naturalWidth)

            DataCells {
                objectName: "headings"
                texts: table.headings
                widths: table.cellWidths
                type: table.type
                rowHeight: table.rowHeight
                inset: table.inset
                color: Theme.muted
            }
            Rectangle {
                width: parent.width
                height: Theme.strokeHairline
                color: Theme.border
            }
            // By number: a row stays while its texts change. Many cells are made between frames, which moves nothing:
            // every row is as tall as the others.
            Repeater {
                model: table.rows.length

                Loader {
                    required property int index

                    width: body.width
                    height: table.rowHeight + Theme.strokeHairline
                    asynchronous: table.rows.length * table.headings.length > table.cellsAtOnce
                    Component.onCompleted: setSource("DataRow.qml", { table: table, number: index })
                }
            }
        }
    }
    FocusRing {
        target: flick
        controlRadius: 0
    }
}
