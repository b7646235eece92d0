import QtQuick
import Loomstreet.Theme

// What a piece costs and, beside it and struck through, what it cost. Prices are never cut short.
Row {
    id: label

    property string price
    property string formerPrice
    property bool reduced: formerPrice !== ""
    property bool formerFirst: false // where prices stand at the end of a row
    property TypeStyle type: Theme.type.price
    // Where both do not fit in this, the former price is only said.
    property real room: Infinity

    readonly property bool cramped: former.text !== "" && !former.visible
    readonly property string sentence: formerPrice === "" ? price
            : qsTranslate("Loomstreet", "%1, was %2").arg(Bidi.isolate(price)).arg(Bidi.isolate(formerPrice))

    spacing: Theme.space1
    layoutDirection: formerFirst ? Qt.RightToLeft : Qt.LeftToRight

    Accessible.role: Accessible.StaticText
    Accessible.name: sentence

    TextLabel {
        id: current

        objectName: "price"
        text: label.price
        type: label.type
        figures: true
        elide: Text.ElideNone
        color: label.reduced ? Theme.sale : Theme.ink
        Accessible.ignored: true
    }
    TextLabel {
        id: former

        objectName: "formerPrice"
        visible: text !== "" && current.implicitWidth + label.spacing + implicitWidth <= label.room
        text: label.formerPrice
        type: label.type
        figures: true
        elide: Text.ElideNone
        color: Theme.muted
        font.strikeout: true
        font.weight: Font.Normal
        Accessible.ignored: true
    }
}
