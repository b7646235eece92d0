import QtQuick
import QtQuick.Templates as T
import Loomstreet.Components
import Loomstreet.Theme

// Where a message is written. Enter sends it, Shift and Enter begin a new line; it grows with what is written, up to a
// few lines. What goes along with the message stands above, other ways to say something beside the button.
FocusScope {
    id: composer

    property alias placeholderText: placeholder.text
    property alias tools: tools.data
    // Removable chips of what goes along.
    property alias chips: chips.data
    readonly property alias input: input
    property string name: placeholderText // for assistive tools
    property bool canSend: false
    property int mostLines: 6

    readonly property string text: input.text
    readonly property int inset: Theme.space1_5

    signal edited(string text)
    signal sendAsked()

    // From elsewhere, as a text that was begun earlier.
    function setText(text: string): void {
        if (text === input.text)
            return
        input.text = text
        input.cursorPosition = input.length
    }
    // A key that was pressed beside it.
    function type(text: string): void {
        input.forceActiveFocus(Qt.OtherFocusReason)
        input.insert(input.cursorPosition, text)
    }

    implicitWidth: 320
    implicitHeight: box.height

    Rectangle {
        id: box

        width: parent.width
        height: column.height
        radius: Theme.radiusPanel
        color: Theme.surface
        border.width: Theme.strokeControl
        border.color: input.activeFocus ? Theme.ink : Theme.border

        FocusRing {
            target: input
            controlRadius: parent.radius
        }
        // A press beside the words means them.
        MouseArea {
            anchors.fill: parent
            cursorShape: Qt.IBeamCursor
            onPressed: input.forceActiveFocus(Qt.MouseFocusReason)
        }
        Column {
            id: column

            width: parent.width

            Flow {
                id: chips

                x: composer.inset - 2
                width: parent.width - 2 * x
                topPadding: visibleChildren.length > 0 ? Theme.space1 : 0
                spacing: Theme.space1 - 2
            }
            Item {
                width: parent.width
                height: Math.max(Theme.targetPrimary, flick.height + 2 * Theme.space1)

                Flickable {
                    id: flick

                    readonly property real most: composer.mostLines * metrics.lineSpacing + Theme.space1

                    anchors { left: parent.left; leftMargin: composer.inset; right: tools.left; rightMargin: Theme.spaceHalf; verticalCenter: parent.verticalCenter }
                    height: Math.min(most, input.contentHeight + input.topPadding + input.bottomPadding)
                    boundsBehavior: Flickable.StopAtBounds
                    clip: true
                    T.ScrollBar.vertical: ScrollBar {}
                    T.TextArea.flickable: T.TextArea {
                        id: input

                        objectName: "input"
                        focus: true
                        topPadding: Theme.spaceHalf
                        bottomPadding: Theme.spaceHalf
                        leftPadding: 2
                        rightPadding: 2
                        font.family: Theme.type.body.family
                        font.pixelSize: Theme.type.body.size
                        font.weight: Theme.type.body.weight
                        font.hintingPreference: Font.PreferNoHinting
                        color: Theme.ink
                        selectionColor: Theme.accent
                        selectedTextColor: Theme.accentInk
                        selectByMouse: true
                        textFormat: TextEdit.PlainText
                        wrapMode: TextEdit.Wrap
                        horizontalAlignment: TextEdit.AlignLeft
                        KeyNavigation.priority: KeyNavigation.BeforeItem
                        KeyNavigation.tab: null
                        cursorDelegate: TextCursor {}

                        Keys.onPressed: event => {
                            const enter = event.key === Qt.Key_Return || event.key === Qt.Key_Enter
                            // The Tab key leads on, and Enter ends what an input method is composing.
                            if (event.key === Qt.Key_Tab || event.key === Qt.Key_Backtab) {
                                const forwards = event.key === Qt.Key_Tab && (event.modifiers & Qt.ShiftModifier) === 0
                                input.nextItemInFocusChain(forwards).forceActiveFocus(forwards ? Qt.TabFocusReason : Qt.BacktabFocusReason)
                                event.accepted = true
                            } else if (enter && (event.modifiers & (Qt.ShiftModifier | Qt.AltModifier)) === 0 && preeditText === "") {
                                event.accepted = true
                                if (composer.canSend && !event.isAutoRepeat)
                                    composer.sendAsked()
                            } else {
                                event.accepted = false
                            }
                        }
                        onTextChanged: composer.edited(text)

                        Accessible.role: Accessible.EditableText
                        Accessible.name: composer.name
                        Accessible.description: qsTranslate("Loomstreet", "Enter sends, Shift+Enter begins a new line")
                        Accessible.multiLine: true
                    }

                    FontMetrics {
                        id: metrics

                        font: input.font
                    }
                }
                TextLabel {
                    id: placeholder

                    objectName: "placeholder"
                    anchors { left: flick.left; leftMargin: 2; right: flick.right; verticalCenter: parent.verticalCenter }
                    visible: input.length === 0 && input.preeditText === ""
                    color: Theme.placeholder
                    Accessible.ignored: true
                }
                Row {
                    id: tools

                    anchors { right: send.left; rightMargin: visibleChildren.length > 0 ? Theme.space1 : 0; bottom: parent.bottom; bottomMargin: Theme.space1 }
                    spacing: Theme.spaceHalf
                }
                IconButton {
                    id: send

                    objectName: "send"
                    anchors { right: parent.right; rightMargin: Theme.space1; bottom: parent.bottom; bottomMargin: Theme.space1 }
                    kind: "accent"
                    radius: extent / 2
                    iconName: "arrow.up"
                    enabled: composer.canSend
                    text: qsTranslate("Loomstreet", "Send")
                    shortcut: "Return"
                    onClicked: composer.sendAsked()
                }
            }
        }
    }
}
