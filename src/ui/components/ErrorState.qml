import QtQuick

// What went wrong, in a fixed sentence, and another try. The try has the focus, unless the shopper is typing.
FocusScope {
    id: failure

    property string title
    property string sentence
    property alias retryText: button.text
    property bool busy: false
    property bool takesFocus: true
    default property alias actions: body.actions

    signal retry()

    function takeFocus(): void {
        if (visible && takesFocus && !(Window.activeFocusItem instanceof TextInput) && !(Window.activeFocusItem instanceof TextEdit))
            button.forceActiveFocus(Qt.OtherFocusReason)
    }

    implicitWidth: body.implicitWidth
    implicitHeight: body.implicitHeight

    onVisibleChanged: takeFocus()
    Component.onCompleted: takeFocus()

    EmptyState {
        id: body

        anchors.fill: parent
        focus: true
        iconName: "warning"
        tone: "danger"
        title: failure.title !== "" ? failure.title : failure.sentence
        sentence: failure.title !== "" ? failure.sentence : ""

        PushButton {
            id: button

            objectName: "retry"
            focus: true
            kind: "primary"
            text: qsTranslate("Loomstreet", "Try again")
            busy: failure.busy
            onClicked: failure.retry()
        }
    }

    Accessible.role: Accessible.AlertMessage
    Accessible.name: title !== "" ? title + " " + sentence : sentence
}
