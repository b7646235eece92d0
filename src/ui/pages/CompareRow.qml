pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// One thing that pieces are compared by: its name above a line, and below it what each piece says.
Column {
    id: row

    property string title
    property CompareModel compare
    property int columnWidth
    property int gap
    property var texts: []
    property string cellSource // of an element with a `piece`, instead of texts

    width: parent?.width ?? 0
    spacing: Theme.space1

    Overline {
        width: parent.width
        words: row.title
        color: Theme.muted
        Accessible.role: Accessible.Heading
    }
    Hairline { width: parent.width }
    Row {
        spacing: row.gap

        Repeater {
            model: row.compare ? row.compare.count : 0

            Item {
                id: cell

                required property int index
                readonly property var piece: row.compare.columns[index]

                width: row.columnWidth
                height: text.visible ? text.implicitHeight : other.height

                TextLabel {
                    id: text

                    width: parent.width
                    visible: row.cellSource === ""
                    text: row.texts[cell.index] || "—"
                    color: row.texts[cell.index] ? Theme.ink : Theme.muted
                    wrapMode: Text.Wrap
                    elide: Text.ElideNone
                    Accessible.name: (cell.piece?.title ?? "") + ", " + row.title + ": "
                                     + (row.texts[cell.index] || qsTranslate("Loomstreet", "not stated"))
                }
                Loader {
                    id: other

                    width: parent.width
                    source: row.cellSource
                    onLoaded: item.piece = Qt.binding(() => cell.piece)
                }
            }
        }
    }
}
