import QtQuick
import QtQuick.Templates as T
import Loomstreet.Theme

// What the fields are made of: a line of text with the application's type, colours and cursor.
T.TextField {
    id: box

    property TypeStyle type: Theme.type.body
    // Room before and after the text, in the reading direction.
    property real startPadding: Theme.space1_5
    property real endPadding: Theme.space1_5

    // A line of text sets its implicit size itself, by the letters that are in it; this is the same in every script.
    readonly property int naturalHeight: Math.max(Theme.targetControl, type.line + 2 * Theme.spaceHalf)

    implicitWidth: implicitBackgroundWidth + leftInset + rightInset
    // A field keeps its baseline whatever script is typed, as long as it is counted from the top.
    height: naturalHeight
    topPadding: Math.round((height - type.line) / 2) + type.leading
    // Letters that reach far down stay where they are, rather than be scrolled into what is left.
    bottomPadding: -type.size
    verticalAlignment: TextInput.AlignTop
    leftPadding: LayoutMirroring.enabled ? endPadding : startPadding
    rightPadding: LayoutMirroring.enabled ? startPadding : endPadding
    font.family: type.family
    font.pixelSize: type.size
    font.weight: type.weight
    font.hintingPreference: Font.PreferNoHinting
    color: Theme.ink
    placeholderTextColor: Theme.placeholder
    selectionColor: Theme.accent
    selectedTextColor: Theme.accentInk
    selectByMouse: true
    horizontalAlignment: TextInput.AlignLeft

    cursorDelegate: TextCursor {}

    TextLabel {
        objectName: "placeholder"
        x: box.leftPadding
        width: box.width - box.leftPadding - box.rightPadding
        anchors.verticalCenter: parent.verticalCenter
        visible: box.length === 0 && box.preeditText === "" && box.placeholderText !== ""
        text: box.placeholderText
        type: box.type
        color: box.placeholderTextColor
        Accessible.ignored: true
    }
}
