import QtQuick
import Loomstreet.Theme

// A text of which a stretch is set in bold, as the part of a suggestion that was typed.
TextLabel {
    id: label

    property string plain
    property int start: 0
    property int length: 0

    function escaped(part: string): string {
        return part.replace(/&/g, "&amp;").replace(/</g, "&lt;").replace(/>/g, "&gt;")
    }

    readonly property bool emphasised: length > 0 && Scripts.canBeParted(plain)

    textFormat: emphasised ? Text.StyledText : Text.PlainText
    text: !emphasised ? plain : escaped(plain.slice(0, start)) + "<b>" + escaped(plain.slice(start, start + length)) + "</b>"
                                + escaped(plain.slice(start + length))
    Accessible.name: plain
}
