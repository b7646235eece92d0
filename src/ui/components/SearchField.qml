import QtQuick
import Loomstreet.Theme

// The pill at the top of the window. At rest it can show where the shopper is (`resting`); its own buttons stand at
// the end, after the keys that lead into it.
FocusScope {
    id: field

    property alias text: input.text
    property alias placeholderText: input.placeholderText
    property alias input: input
    property string shortcut
    property alias resting: rest.data
    default property alias buttons: buttons.data

    readonly property bool atRest: !input.activeFocus && input.length === 0

    // What assistive tools say of it, as the row below it that Enter would take.
    property string hint

    signal accepted()
    signal edited(string text)
    // A key goes here before the field has it.
    signal keyPressed(var event)

    implicitWidth: 560
    implicitHeight: Math.max(36, input.type.line + Theme.space1)
    opacity: enabled ? 1 : Theme.alphaDisabled

    TextBox {
        id: input

        objectName: "input"
        anchors.fill: parent
        startPadding: Theme.space5
        endPadding: end.width + Theme.space2
        type: Theme.type.small
        focus: true
        Keys.onPressed: event => field.keyPressed(event)
        onAccepted: field.accepted()
        onTextEdited: field.edited(text)
        placeholderTextColor: rest.visible ? "transparent" : Theme.placeholder

        background: Rectangle {
            radius: height / 2
            color: input.activeFocus ? Theme.surface : input.hovered ? Theme.hover : Theme.sunken
            border.width: input.activeFocus ? Theme.strokeControl : 0
            border.color: Theme.border

            FocusRing {
                target: input
                controlRadius: parent.radius
            }
        }
        Accessible.role: Accessible.EditableText
        Accessible.name: placeholderText !== "" ? placeholderText : qsTranslate("Loomstreet", "Search")
        Accessible.description: field.hint !== "" ? field.hint : field.shortcut
    }
    Icon {
        anchors.left: parent.left
        anchors.leftMargin: Theme.space1_5 + 2
        anchors.verticalCenter: parent.verticalCenter
        name: "magnifyingglass"
        size: 16
        color: input.activeFocus ? Theme.ink : Theme.muted
    }
    Item {
        id: rest

        objectName: "resting"
        anchors.left: parent.left
        anchors.right: end.left
        anchors.leftMargin: Theme.space5
        anchors.rightMargin: Theme.space1
        anchors.verticalCenter: parent.verticalCenter
        height: childrenRect.height
        visible: field.atRest && children.length > 0
        clip: true
    }
    Row {
        id: end

        anchors.right: parent.right
        anchors.rightMargin: Theme.spaceHalf
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.space1

        KeyHint {
            objectName: "shortcut"
            anchors.verticalCenter: parent.verticalCenter
            visible: field.shortcut !== "" && !input.activeFocus
            text: field.shortcut
        }
        Row {
            id: buttons

            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.spaceHalf
        }
    }
}
