import QtQuick
import Loomstreet.Theme

// The cursor of the field that it stands in: as tall as the field's own letters, whichever script the text is in.
Item {
    id: cursor

    // A line of text, or several.
    readonly property var field: parent
    readonly property int letters: field?.font?.pixelSize ?? 0
    readonly property bool shown: field?.selectionStart !== undefined && field.activeFocus && !field.readOnly
                                  && field.selectionStart === field.selectionEnd
    property bool lit: true

    onShownChanged: lit = true

    Rectangle {
        width: 1
        height: Math.round(cursor.letters * 1.3)
        y: Math.round(cursor.letters * -0.05)
        visible: cursor.shown && cursor.lit
        color: Theme.ink
    }
    Timer {
        id: flash

        interval: Application.styleHints.cursorFlashTime / 2
        running: cursor.shown && interval > 0 && !Theme.reducedMotion
        repeat: true
        onTriggered: cursor.lit = !cursor.lit
        onRunningChanged: cursor.lit = true
    }
    Connections {
        target: cursor.field

        // A moving cursor stays lit.
        function onCursorPositionChanged() {
            cursor.lit = true
            if (flash.running)
                flash.restart()
        }
    }
}
