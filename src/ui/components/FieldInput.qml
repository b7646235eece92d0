import QtQuick
import Loomstreet.Theme

// A field with its label above and a message below. An error takes the message's place and says so with an icon and
// a colour.
FocusScope {
    id: field

    property alias text: input.text
    property alias placeholderText: input.placeholderText
    property alias echoMode: input.echoMode
    property alias inputMethodHints: input.inputMethodHints
    property alias maximumLength: input.maximumLength
    property alias readOnly: input.readOnly
    property alias validator: input.validator
    // Where the typing goes: what stands beside it may have had the focus last.
    readonly property alias textInput: input
    property string label
    property string message
    property string error
    // What stands after the input, as the button that sends it; the words above and below take the whole width.
    property real trailingRoom: 0
    // An error that is told of elsewhere is about it.
    property bool flawed: false
    // What was typed has been checked and is right.
    property bool confirmed: false

    readonly property bool failed: error !== ""

    signal accepted()
    signal edited(string text)

    function selectAll() { input.selectAll() }
    function clear() { input.clear() }

    implicitWidth: 240
    implicitHeight: column.implicitHeight
    opacity: enabled ? 1 : Theme.alphaDisabled

    Column {
        id: column

        width: parent.width
        spacing: 6

        TextLabel {
            objectName: "label"
            visible: text !== ""
            width: parent.width
            text: field.label
            type: Theme.type.label
            Accessible.ignored: true
        }
        TextBox {
            id: input

            objectName: "input"
            anchors.left: parent.left
            width: parent.width - field.trailingRoom
            endPadding: Theme.space1_5 + (check.visible ? check.width + Theme.space1 : 0)
            focus: true
            background: Rectangle {
                radius: Theme.radiusControl
                color: Theme.surface
                border.width: Theme.strokeControl
                border.color: field.failed || field.flawed ? Theme.danger : input.activeFocus ? Theme.ink : Theme.border

                FocusRing { target: input }
            }
            onAccepted: field.accepted()
            onTextEdited: field.edited(text)

            Accessible.name: field.label !== "" ? field.label : placeholderText
            Accessible.description: field.failed ? field.error : field.message

            Icon {
                id: check

                objectName: "check"
                anchors.right: parent.right
                anchors.rightMargin: Theme.space1_5
                anchors.verticalCenter: parent.verticalCenter
                visible: field.confirmed && !field.failed
                name: "checkmark"
                size: 16
                color: Theme.success
            }
        }
        Row {
            id: notice

            width: parent.width
            visible: notes.text !== ""
            spacing: 6

            Icon {
                y: Math.round((notes.type.line - height) / 2)
                name: field.failed ? "warning" : "info"
                visible: field.failed
                size: 16
                color: notes.color
            }
            TextLabel {
                id: notes

                objectName: "message"
                width: notice.width - (field.failed ? 16 + notice.spacing : 0)
                text: field.failed ? field.error : field.message
                type: Theme.type.caption
                color: field.failed ? Theme.danger : Theme.muted
                wrapMode: Text.Wrap
                Accessible.role: field.failed ? Accessible.AlertMessage : Accessible.StaticText
            }
        }
    }
}
