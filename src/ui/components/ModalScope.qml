import QtQuick
import Loomstreet.Theme

// What panels and sheets share: they take the focus when they open and give it back when they close, keep the Tab
// key within, and ask to be closed with Esc or a press beside them. Whether they are open is for others to say.
FocusScope {
    id: scope

    property bool open: false
    property real scrimOpacity: Theme.alphaScrimPanel
    property int duration: Theme.durationPanel
    property string name // for assistive tools
    property Item firstFocus: null
    default property alias content: holder.data

    // 0 closed, 1 open.
    property real progress: open ? 1 : 0
    property Item cameFrom: null

    signal closeAsked()

    function enter(): void {
        // What is made open enters twice: when it learns so, and when it is whole.
        if (!activeFocus)
            cameFrom = Window.activeFocusItem
        if (firstFocus !== null)
            firstFocus.forceActiveFocus(Qt.PopupFocusReason)
        else
            scope.forceActiveFocus(Qt.PopupFocusReason)
    }
    function leave(): void {
        // Whoever took the focus meanwhile keeps it.
        if (activeFocus && cameFrom !== null && cameFrom.visible)
            cameFrom.forceActiveFocus(Qt.PopupFocusReason)
        else if (activeFocus)
            focus = false
        cameFrom = null
    }

    anchors.fill: parent
    visible: open || progress > 0

    onOpenChanged: open ? enter() : leave()
    Component.onCompleted: if (open) enter()

    Keys.onEscapePressed: closeAsked()

    Behavior on progress {
        NumberAnimation {
            duration: scope.duration
            easing.type: Easing.Bezier
            easing.bezierCurve: scope.open ? Theme.curveEnter : Theme.curveExit
        }
    }

    Accessible.role: Accessible.Dialog
    Accessible.name: name

    MouseArea {
        objectName: "scrim"
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        enabled: scope.open
        onClicked: scope.closeAsked()
        onWheel: wheel => { wheel.accepted = true }

        Rectangle {
            anchors.fill: parent
            color: Theme.scrim
            opacity: scope.scrimOpacity * scope.progress
        }
    }
    // Stops for the Tab key before the first and after the last: each leads around to the other end.
    Item {
        id: before

        activeFocusOnTab: scope.open
        onActiveFocusChanged: if (activeFocus) after.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
    }
    Item {
        id: holder

        anchors.fill: parent
    }
    Item {
        id: after

        activeFocusOnTab: scope.open
        onActiveFocusChanged: if (activeFocus) before.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
    }
}
