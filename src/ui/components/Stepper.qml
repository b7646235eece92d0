pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Theme

// A small quantity between two limits. It asks for a new value and shows the one it is given.
Item {
    id: control

    property int value: 1
    property int from: 1
    property int to: 99
    property string name // for assistive tools: what is counted

    signal stepped(int value)

    function step(by: int): void {
        const next = Math.max(from, Math.min(to, value + by))
        if (enabled && next !== value)
            stepped(next)
    }

    component StepButton: IconButton {
        required property Item other

        // At the limit a button goes out of use, and hands the keyboard to its neighbour.
        onActiveFocusChanged: if (!activeFocus && !enabled && other.enabled) other.forceActiveFocus()

        iconSize: 16
        showsToolTip: false
        extent: Theme.targetMinimum
    }

    implicitWidth: less.width + count.width + more.width
    implicitHeight: Math.max(Theme.targetMinimum, count.implicitHeight + Theme.space1)
    opacity: enabled ? 1 : Theme.alphaDisabled

    Accessible.role: Accessible.SpinBox
    Accessible.name: name
    Accessible.description: value
    Accessible.onIncreaseAction: step(1)
    Accessible.onDecreaseAction: step(-1)

    Keys.onPressed: event => {
        const up = [Qt.Key_Up, Qt.Key_Plus].indexOf(event.key) >= 0
        const down = [Qt.Key_Down, Qt.Key_Minus].indexOf(event.key) >= 0
        if (up || down)
            step(up ? 1 : -1)
        event.accepted = up || down
    }

    Rectangle {
        anchors.fill: parent
        radius: Theme.radiusControl
        color: "transparent"
        border.width: Theme.strokeControl
        border.color: Theme.border
    }
    Row {
        anchors.verticalCenter: parent.verticalCenter

        StepButton {
            id: less

            objectName: "less"
            other: more
            height: control.height
            enabled: control.value > control.from
            iconName: "minus"
            text: qsTranslate("Loomstreet", "Fewer", "stepper.fewer")
            onClicked: control.step(-1)
        }
        TextLabel {
            id: count

            objectName: "count"
            anchors.verticalCenter: parent.verticalCenter
            width: Math.max(20, implicitWidth)
            text: control.value
            type: Theme.type.label
            figures: true
            horizontalAlignment: Text.AlignHCenter
            Accessible.ignored: true
        }
        StepButton {
            id: more

            objectName: "more"
            other: less
            height: control.height
            enabled: control.value < control.to
            iconName: "plus"
            text: qsTranslate("Loomstreet", "More", "stepper.more")
            onClicked: control.step(1)
        }
    }
}
