pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Loomstreet.Theme

// A code from a message, each digit in a box of its own; all the same it is one field, and takes a paste as one. Who
// owns the code tells what is left of what was typed.
FocusScope {
    id: field

    readonly property alias textInput: input
    property string label
    property string code
    property string error
    property int length: 6
    property bool readOnly: false
    default property alias action: action.data // at the end of the label's line

    readonly property bool failed: error !== ""
    readonly property real gap: Theme.space1
    readonly property real boxWidth: (width - (length - 1) * gap) / length

    signal edited(string text)
    signal accepted()

    function selectAll(): void { input.selectAll() }
    function show(): void {
        if (input.text !== code)
            input.text = code
    }

    implicitWidth: 400
    implicitHeight: column.implicitHeight
    opacity: enabled ? 1 : Theme.alphaDisabled

    onCodeChanged: show()

    Column {
        id: column

        width: parent.width
        spacing: 6

        Item {
            width: parent.width
            height: words.implicitHeight

            TextLabel {
                id: words

                anchors { left: parent.left; right: action.left; rightMargin: Theme.space1 }
                text: field.label
                type: Theme.type.label
                Accessible.ignored: true
            }
            Row {
                id: action

                anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            }
        }
        Item {
            width: parent.width
            height: Theme.targetPrimary
            // A code is read from the left in every script.
            LayoutMirroring.enabled: false
            LayoutMirroring.childrenInherit: true

            Repeater {
                model: field.length

                Rectangle {
                    id: box

                    required property int index
                    readonly property bool current: input.activeFocus && index === Math.min(input.cursorPosition, field.length - 1)
                    readonly property bool chosen: index >= input.selectionStart && index < input.selectionEnd

                    x: index * (field.boxWidth + field.gap)
                    width: field.boxWidth
                    height: parent.height
                    radius: Theme.radiusControl
                    color: chosen ? Theme.accentTint : Theme.surface
                    border.width: Theme.strokeControl
                    border.color: field.failed ? Theme.danger : current ? Theme.ink : Theme.border

                    TextLabel {
                        anchors.centerIn: parent
                        text: input.text.charAt(box.index)
                        type: Theme.type.priceLarge
                        figures: true
                        Accessible.ignored: true
                    }
                    Rectangle {
                        anchors.centerIn: parent
                        visible: box.current && box.index >= input.length && !field.readOnly
                        width: 1
                        height: 24
                        color: Theme.ink
                    }
                    FocusRing {
                        target: box.current ? input : null
                    }
                }
            }
            T.TextField {
                id: input

                objectName: "input"
                anchors.fill: parent
                focus: true
                color: "transparent"
                selectionColor: "transparent"
                selectedTextColor: "transparent"
                cursorDelegate: Item {}
                overwriteMode: true
                readOnly: field.readOnly
                inputMethodHints: Qt.ImhDigitsOnly | Qt.ImhNoPredictiveText | Qt.ImhSensitiveData
                onTextEdited: {
                    field.edited(text)
                    field.show()
                }
                onAccepted: field.accepted()
                // What is pasted is the whole code.
                Keys.onPressed: event => {
                    if (event.matches(StandardKey.Paste))
                        selectAll()
                    event.accepted = false
                }

                Accessible.name: field.label
                Accessible.description: field.failed ? field.error : ""
            }
            MouseArea {
                anchors.fill: parent
                cursorShape: Qt.IBeamCursor
                onPressed: mouse => {
                    input.forceActiveFocus(Qt.MouseFocusReason)
                    input.deselect()
                    input.cursorPosition = Math.min(input.length, Math.floor(mouse.x / (field.boxWidth + field.gap)))
                }
                onDoubleClicked: input.selectAll()
            }
        }
        Row {
            id: notice

            width: parent.width
            visible: field.failed
            spacing: 6

            Icon {
                y: Math.round((Theme.type.caption.line - height) / 2)
                name: "warning"
                size: 16
                color: Theme.danger
            }
            TextLabel {
                objectName: "message"
                width: notice.width - 16 - notice.spacing
                text: field.error
                type: Theme.type.caption
                color: Theme.danger
                wrapMode: Text.Wrap
                Accessible.role: Accessible.AlertMessage
            }
        }
    }
}
