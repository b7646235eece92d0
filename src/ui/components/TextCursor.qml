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
    // Where nobody types for ten seconds or so it stays lit: a window that is left alone is to rest.
    property int flashes: 0
    readonly property int mostFlashes: 20

    function begin(): void {
        lit = true
        flashes = 0
    }

    onShownChanged: begin()

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
        running: cursor.shown && interval > 0 && !Theme.reducedMotion && cursor.flashes < cursor.mostFlashes
        repeat: true
        onTriggered: {
            cursor.lit = !cursor.lit
            ++cursor.flashes
        }
        onRunningChanged: cursor.lit = true
    }
    Connections {
        target: cursor.field

        // A moving cursor stays lit.
        function onCursorPositionChanged() {
            cursor.begin()
            if (flash.running)
                flash.restart()
        }
    }
}
