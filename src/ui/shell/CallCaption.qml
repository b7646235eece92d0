import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// One line of what is said. The shopper's own have a mark beside them; what was said before is muted, and so are the
// last words of the present line for as long as they may still be heard otherwise.
Item {
    id: caption

    // Of the transcript.
    required property var model
    property bool latest: false
    property string guideName

    readonly property bool mine: model.isMine
    readonly property bool settled: model.isFinal
    readonly property string text: model.text
    // So much of it was heard twice in the same words.
    property int sure: 0
    property string before

    function follow(): void {
        if (text === before)
            return
        let common = 0
        while (common < text.length && text[common] === before[common])
            ++common
        if (before === "")
            common = text.length - 1
        // Whole words, where there are any: letters that join would come apart where the colour changes.
        const end = text.lastIndexOf(" ", common) + 1
        sure = common === text.length ? common : Scripts.of(text) === Scripts.Han ? common : end
        before = text
    }
    function escaped(part: string): string {
        return part.replace(/&/g, "&amp;").replace(/</g, "&lt;").replace(/>/g, "&gt;")
    }

    onTextChanged: follow()
    Component.onCompleted: follow()

    implicitHeight: words.implicitHeight

    Accessible.role: Accessible.ListItem
    Accessible.name: (mine ? qsTranslate("Loomstreet", "You") : guideName) + ": " + text

    Rectangle {
        objectName: "mineMark"
        anchors { left: parent.left; leftMargin: -Theme.space1_5; top: parent.top; bottom: parent.bottom; topMargin: 4; bottomMargin: 4 }
        visible: caption.mine
        width: 3
        radius: 1.5
        color: Theme.accent
    }
    TextLabel {
        id: words

        readonly property string trail: /[.!?…,;:،؟。！？]$/.test(caption.text) ? "" : "…"

        objectName: "text"
        width: parent.width
        textFormat: caption.latest && !caption.settled ? Text.StyledText : Text.PlainText
        text: !(caption.latest && !caption.settled) ? caption.text
            : caption.escaped(caption.text.slice(0, caption.sure)) + "<font color=\"" + Theme.muted + "\">"
              + caption.escaped(caption.text.slice(caption.sure)) + trail + "</font>"
        type: caption.latest ? Theme.type.spoken : Theme.type.spokenBefore
        color: caption.latest ? Theme.ink : Theme.muted
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
