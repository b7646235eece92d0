import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// After a call: why it ended, where that needs saying, and the ways on.
FocusScope {
    id: end

    required property MiraVoiceSession call
    property bool small: false

    readonly property int gap: small ? Theme.spaceHalf : Theme.space2
    readonly property string buttonSize: small ? "small" : "primary"

    implicitHeight: buttons.y + buttons.height

    Icon {
        id: icon

        y: Math.round((sentence.type.line - height) / 2)
        anchors.left: parent.left
        visible: end.call.failure !== ""
        name: "warning"
        size: 16
        color: Theme.danger
    }
    TextLabel {
        id: sentence

        objectName: "failure"
        anchors { left: icon.right; leftMargin: Theme.space1; right: parent.right }
        visible: end.call.failure !== ""
        text: end.call.failure
        type: end.small ? Theme.type.small : Theme.type.body
        wrapMode: Text.Wrap
        Accessible.role: Accessible.AlertMessage
    }
    // Below each other where one would cut the other short.
    Flow {
        id: buttons

        readonly property bool stacked: !end.small && again.visible && again.implicitWidth + spacing + close.implicitWidth > width

        anchors { left: parent.left; right: parent.right }
        y: end.call.failure !== "" ? Math.ceil(sentence.implicitHeight) + end.gap : 0
        spacing: Theme.space1

        PushButton {
            id: again

            objectName: "callAgain"
            width: end.small ? implicitWidth : buttons.stacked ? buttons.width : Math.max(implicitWidth, (buttons.width - buttons.spacing) / 2)
            visible: end.call.canCallAgain
            focus: visible
            kind: end.small ? "secondary" : "primary"
            size: end.buttonSize
            iconName: "phone"
            text: qsTranslate("Loomstreet", "Call again")
            onClicked: end.call.callAgain()
        }
        PushButton {
            id: close

            objectName: "closeEnded"
            kind: end.small ? "quiet" : "secondary"
            width: end.small ? implicitWidth : again.visible && !buttons.stacked ? buttons.width - again.width - buttons.spacing : buttons.width
            focus: !again.visible
            size: end.buttonSize
            text: qsTranslate("Loomstreet", "Close")
            onClicked: end.call.dismiss()
        }
    }
}
