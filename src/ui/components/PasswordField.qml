import QtQuick
import Loomstreet.Theme

// A field for a password, which can be looked at while it is typed.
FieldInput {
    id: field

    trailingRoom: Theme.targetControl + Theme.space1
    maximumLength: 256
    echoMode: eye.checked ? TextInput.Normal : TextInput.Password
    inputMethodHints: Qt.ImhHiddenText | Qt.ImhSensitiveData | Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase

    onVisibleChanged: eye.checked = false

    IconButton {
        id: eye

        objectName: "eye"
        anchors.right: parent.right
        y: field.label === "" ? 0 : Theme.type.label.line + 6
        kind: "outlined"
        extent: Theme.targetControl
        checkable: true
        on: checked
        iconName: checked ? "eye.slash" : "eye"
        text: checked ? qsTranslate("Loomstreet", "Hide the password") : qsTranslate("Loomstreet", "Show the password")
    }
}
