import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A text as a TextLabel shows it, that can be selected and copied, by the keyboard too. Plain, whatever stands in it.
TextEdit {
    id: field

    property TypeStyle type: Theme.type.body

    color: Theme.ink
    textFormat: TextEdit.PlainText
    readOnly: true
    selectByMouse: true
    selectByKeyboard: true
    selectionColor: Theme.accent
    selectedTextColor: Theme.accentInk
    wrapMode: TextEdit.Wrap
    horizontalAlignment: TextEdit.AlignLeft
    font.family: type.family
    font.pixelSize: type.size
    font.weight: type.weight
    font.hintingPreference: Font.PreferNoHinting
    // A line of a given height stands on four fifths of it, whatever its letters.
    topPadding: Math.round(type.baseline - type.line * 4 / 5)
    bottomPadding: -topPadding
    activeFocusOnTab: true
    // Only what is selected shows where one is.
    cursorDelegate: Item {}

    Keys.onPressed: event => {
        // The arrows move through the text only while something of it is being selected.
        const moves = [Qt.Key_Up, Qt.Key_Down, Qt.Key_PageUp, Qt.Key_PageDown, Qt.Key_Home, Qt.Key_End].indexOf(event.key) >= 0
        if (!moves || (event.modifiers & (Qt.ShiftModifier | Qt.ControlModifier)) !== 0 || selectedText !== "")
            event.accepted = false
    }

    LineHeight {
        document: field.textDocument
        height: field.type.line
    }
    FocusRing {
        target: field
        controlRadius: Theme.radiusSmall
    }
}
