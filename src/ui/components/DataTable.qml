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
    readonly property int rowHeight: type.line + 10

    // Takes the font that it measures with, so that another one has it measured again.
    function measure(font: font): var {
        return headings.map((heading, column) => {
            let widest = strong.advanceWidth(heading)
            for (const row of rows)
                widest = Math.max(widest, strong.advanceWidth(row[column] ?? ""))
            return Math.ceil(widest) + 2 * inset
        })
    }
    function cellWidth(column: int): real { return (naturalWidths[column] ?? 0) + spare }
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

    component Cells: Row {
        id: cells

        property var texts: []
        property bool marked: false
        property color color: Theme.ink

        Repeater {
            model: cells.texts

            TextLabel {
                required property string modelData
                required property int index

                objectName: "cell" + index
                width: table.cellWidth(index)
                height: table.rowHeight
                leftPadding: table.inset
                rightPadding: table.inset
                text: modelData
                type: table.type
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

            Cells {
                objectName: "headings"
                texts: table.headings
                color: Theme.muted
            }
            Rectangle {
                width: parent.width
                height: Theme.strokeHairline
                color: Theme.border
            }
            Repeater {
                model: table.rows

                Rectangle {
                    id: line

                    required property var modelData
                    required property int index

                    objectName: "row" + index
                    width: body.width
                    height: table.rowHeight + Theme.strokeHairline
                    color: index === table.markedRow ? Theme.accentTint : "transparent"

                    Accessible.role: Accessible.Row
                    Accessible.name: table.sentence(modelData)
                    Accessible.selected: index === table.markedRow

                    Cells {
                        texts: line.modelData
                        marked: line.index === table.markedRow
                    }
                    Hairline {
                        anchors.bottom: parent.bottom
                        width: parent.width
                    }
                }
            }
        }
    }
    FocusRing {
        target: flick
        controlRadius: 0
    }
}
