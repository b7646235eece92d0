import QtQuick
import QtQuick.Templates as T
import Loomstreet.Theme

// A setting that is on or off. The whole row is the target; the switch at its end shows the state and the focus.
T.Switch {
    id: control

    property string note
    property bool divided: true

    function press(): void {
        if (!enabled)
            return
        toggle()
        toggled()
        clicked()
    }

    implicitWidth: leftPadding + rightPadding + implicitContentWidth + control.spacing + implicitIndicatorWidth
    implicitHeight: Math.max(Theme.targetRow, implicitContentHeight + topPadding + bottomPadding)
    verticalPadding: Theme.space1
    spacing: Theme.space2
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.alphaDisabled

    contentItem: Item {
        implicitWidth: words.implicitWidth
        implicitHeight: words.implicitHeight

        TitleAndNote {
            id: words

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.rightMargin: control.indicator.width + control.spacing
            anchors.verticalCenter: parent.verticalCenter
            title: control.text
            note: control.note
        }
    }
    indicator: Rectangle {
        objectName: "indicator"
        implicitWidth: 36
        implicitHeight: 20
        x: control.mirrored ? control.leftPadding : control.width - width - control.rightPadding
        y: Math.round((control.height - height) / 2)
        radius: height / 2
        color: !control.checked ? (control.hovered ? Theme.hover : "transparent")
                                : control.hovered ? Theme.accentHover : Theme.accent
        border.width: control.checked ? 0 : 1.5
        border.color: Theme.border

        Rectangle {
            objectName: "knob"
            readonly property real inset: control.checked ? 2 : 3

            width: parent.height - 2 * inset
            height: width
            x: inset + control.visualPosition * (parent.width - parent.height)
            y: inset
            radius: width / 2
            color: control.checked ? Theme.accentInk : Theme.border

            Behavior on x { NumberAnimation { duration: Theme.durationPress } }
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

    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.description: note
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: control.press()
    Accessible.onToggleAction: control.press()
}
