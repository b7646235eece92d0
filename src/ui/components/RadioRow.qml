import QtQuick
import QtQuick.Templates as T
import Loomstreet.Theme

// One of several ways to have it. The whole row is the target.
T.RadioButton {
    id: control

    property string note
    property bool divided: false

    function press(): void {
        if (!enabled)
            return
        if (!checked) {
            toggle()
            toggled()
        }
        clicked()
    }

    implicitWidth: leftPadding + rightPadding + implicitContentWidth
    implicitHeight: Math.max(Theme.targetRow, implicitContentHeight + topPadding + bottomPadding)
    verticalPadding: Theme.space1
    spacing: Theme.space1_5
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.alphaDisabled

    contentItem: Item {
        implicitWidth: control.indicator.width + control.spacing + words.implicitWidth
        implicitHeight: words.implicitHeight

        TitleAndNote {
            id: words

            anchors.left: parent.left
            anchors.leftMargin: control.indicator.width + control.spacing
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            title: control.text
            note: control.note
        }
    }
    indicator: Rectangle {
        objectName: "indicator"
        implicitWidth: 20
        implicitHeight: 20
        x: control.mirrored ? control.width - width - control.rightPadding : control.leftPadding
        y: Math.round((control.height - height) / 2)
        radius: height / 2
        color: control.hovered ? Theme.hover : "transparent"
        border.width: 1.5
        border.color: control.checked ? Theme.accent : Theme.border

        Rectangle {
            anchors.centerIn: parent
            visible: control.checked
            width: 10
            height: 10
            radius: 5
            color: Theme.accent
        }
        FocusRing {
            target: control
            controlRadius: parent.radius
        }
    }
    background: Item {
        Hairline {
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            visible: control.divided
        }
    }

    Keys.onReturnPressed: event => { if (!event.isAutoRepeat) control.press() }
    Keys.onEnterPressed: event => { if (!event.isAutoRepeat) control.press() }

    Accessible.role: Accessible.RadioButton
    Accessible.name: text
    Accessible.description: note
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: control.press()
}
