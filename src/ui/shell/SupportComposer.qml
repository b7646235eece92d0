import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Where the shopper writes to customer service, with the file that goes along.
Column {
    id: writing

    property SupportChatModel support

    readonly property alias input: composer.input

    signal sent()

    function choose(): void {
        if (chooser.status === Loader.Null)
            chooser.setSource("SupportFileChooser.qml", { support: support })
        chooser.made.open()
    }

    spacing: Theme.space1

    Row {
        x: Theme.spaceHalf
        width: parent.width - 2 * x
        visible: reason.text !== ""
        spacing: 6

        Icon {
            y: Math.round((reason.type.line - height) / 2)
            name: "warning"
            size: 16
            color: Theme.danger
        }
        TextLabel {
            id: reason

            objectName: "attachmentFailure"
            width: parent.width - 22
            text: writing.support.attachmentFailure
            type: Theme.type.caption
            color: Theme.danger
            wrapMode: Text.Wrap
            Accessible.role: Accessible.AlertMessage
        }
    }
    ChatComposer {
        id: composer

        objectName: "composer"
        width: parent.width
        focus: true
        mostLines: Window.height < 640 ? 4 : 8
        name: qsTranslate("Loomstreet", "Write to Customer Service")
        placeholderText: qsTranslate("Loomstreet", "Write a message")
        canSend: writing.support.canSend
        onEdited: text => { writing.support.draft = text }
        onSendAsked: {
            writing.support.send()
            writing.sent()
        }
        Component.onCompleted: setText(writing.support.draft)

        Accessible.role: Accessible.Grouping
        Accessible.name: name

        chips: [
            Chip {
                objectName: "attachedFile"
                width: Math.min(implicitWidth, composer.width - 2 * composer.inset)
                visible: writing.support.attachment !== undefined
                compact: true
                selected: true
                removable: true
                iconName: writing.support.attachment?.isPicture ? "photo" : "document"
                text: writing.support.attachment?.name ?? ""
                onClicked: {
                    writing.support.removeAttachment()
                    composer.input.forceActiveFocus()
                }
            }
        ]
        tools: [
            IconButton {
                objectName: "attach"
                iconName: "paperclip"
                color: Theme.muted
                enabled: !writing.support.isAttaching
                text: qsTranslate("Loomstreet", "Attach a picture or a PDF")
                onClicked: writing.choose()
            }
        ]
    }
    Connections {
        target: writing.support
        function onDraftChanged(): void { composer.setText(writing.support.draft) }
    }
    // Made when it is first asked for.
    Loader {
        id: chooser

        readonly property var made: item
    }
    Connections {
        target: chooser.made
        function onAccepted(): void { composer.input.forceActiveFocus() }
    }
}
