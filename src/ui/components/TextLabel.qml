import QtQuick
import Loomstreet.Theme

// A text in one of the styles of type. It is always plain text: what stands in it comes from elsewhere.
Text {
    id: label

    property TypeStyle type: Theme.type.body
    // Tabular figures, for prices, counts, sizes, times, tables and badges.
    property bool figures: false

    readonly property int scripts: Scripts.of(text)
    // Above the first line, so that the baseline is where it is in every label of this style.
    readonly property real evenPadding: (verticalAlignment === Text.AlignVCenter ? type.centredLeading : type.leading)
                                        - (scripts === Scripts.Plain ? 0 : type.rise(scripts) * type.size)

    color: Theme.ink
    textFormat: Text.PlainText
    font.family: figures && type.face === "text" ? Theme.fontFigures : type.family
    font.pixelSize: type.size
    font.weight: type.weight
    // Letters that join, carry marks or fill a square are never set apart.
    font.letterSpacing: scripts === Scripts.Plain ? type.tracking * type.size : 0
    // Letters keep their drawn weight and distances; hinted ones are darker than the design wants.
    font.hintingPreference: Font.PreferNoHinting
    font.capitalization: type.capitals ? Font.AllUppercase : Font.MixedCase
    lineHeightMode: Text.FixedHeight
    lineHeight: type.line
    topPadding: evenPadding
    bottomPadding: -topPadding
    // Said aloud, so that mirroring turns it: left to itself, a text lies on the side its own script begins at.
    horizontalAlignment: Text.AlignLeft
    elide: Text.ElideRight

    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
