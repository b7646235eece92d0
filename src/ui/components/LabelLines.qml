import QtQuick

// The text of a row that takes more than one line.
TextLabel {
    required property LabelRow row

    width: row.room
    text: row.text
    wrapMode: Text.Wrap
    maximumLineCount: row.lines
    horizontalAlignment: row.centred && row.iconName === "" ? Text.AlignHCenter : Text.AlignLeft
    type: row.type
    figures: row.figures
    color: row.color
    Accessible.ignored: true
}
