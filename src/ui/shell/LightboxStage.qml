pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// One picture as large as there is room, enlarged by the wheel, a pinch, a double click or the keys, and moved about
// while it is larger than its place.
FocusScope {
    id: stage

    property string address
    property string next
    property string previous
    property string description

    readonly property real most: 4
    readonly property real step: 1.5
    readonly property real stride: 80
    property real zoom: 1
    // Of the picture's middle from the middle of the stage.
    property real panX: 0
    property real panY: 0

    readonly property bool ready: picture.status === Image.Ready
    readonly property bool loading: picture.status === Image.Loading
    readonly property bool broken: address !== "" && height > 0 && (picture.status === Image.Error || picture.status === Image.Null)
    readonly property real reachX: Math.max(0, (picture.paintedWidth * zoom - width) / 2)
    readonly property real reachY: Math.max(0, (picture.paintedHeight * zoom - height) / 2)
    property bool retrying: false

    // By hand.
    signal touched()
    // A press beside the picture.
    signal pressedBeside()

    function clamp(value: real, most: real): real { return Math.max(-most, Math.min(most, value)) }
    function panBy(x: real, y: real): void {
        panX = clamp(panX + x, reachX)
        panY = clamp(panY + y, reachY)
    }
    // Keeps what lies at the place, counted from the middle of the stage, where it is.
    function zoomTo(wanted: real, x: real, y: real): void {
        if (!ready)
            return
        touched()
        const before = zoom
        zoom = Math.max(1, Math.min(most, wanted))
        panX = clamp(x - (x - panX) * zoom / before, reachX)
        panY = clamp(y - (y - panY) * zoom / before, reachY)
    }
    function zoomBy(factor: real): void { zoomTo(zoom * factor, 0, 0) }
    function reset(): void {
        zoom = 1
        panX = 0
        panY = 0
    }
    function isOnPicture(at: point): bool {
        return Math.abs(at.x - width / 2 - panX) <= picture.paintedWidth * zoom / 2
            && Math.abs(at.y - height / 2 - panY) <= picture.paintedHeight * zoom / 2
    }
    function retry(): void {
        retrying = true
        retrying = false
    }

    objectName: "stage"
    clip: true
    activeFocusOnTab: true
    onWidthChanged: panBy(0, 0)
    onHeightChanged: panBy(0, 0)

    Accessible.role: Accessible.Graphic
    Accessible.name: description
    Accessible.focusable: true
    Accessible.onPressAction: zoom > 1 ? reset() : zoomBy(2)

    Item {
        id: moved

        anchors.fill: parent
        transform: [
            Scale {
                origin { x: stage.width / 2; y: stage.height / 2 }
                xScale: stage.zoom
                yScale: stage.zoom
            },
            Translate { x: stage.panX; y: stage.panY }
        ]

        LightboxPicture {
            id: picture

            objectName: "picture"
            anchors.fill: parent
            visible: status === Image.Ready
            address: stage.retrying ? "" : stage.address
            detail: Screen.devicePixelRatio
            Accessible.ignored: true
        }
        // The same with more in it, over the one that is there already.
        LightboxPicture {
            anchors.fill: parent
            visible: status === Image.Ready
            address: stage.zoom > 1 && stage.ready ? stage.address : ""
            detail: Screen.devicePixelRatio * (stage.zoom > 2 ? stage.most : 2)
            Accessible.ignored: true
        }
    }
    LightboxPicture {
        anchors.fill: parent
        visible: false
        address: stage.ready ? stage.next : ""
        detail: Screen.devicePixelRatio
    }
    LightboxPicture {
        anchors.fill: parent
        visible: false
        address: stage.ready ? stage.previous : ""
        detail: Screen.devicePixelRatio
    }

    MouseArea {
        id: mouse

        property point grabbed
        property bool grabbedBeside: false

        anchors.fill: parent
        cursorShape: stage.reachX > 0 || stage.reachY > 0 ? (pressed ? Qt.ClosedHandCursor : Qt.OpenHandCursor) : Qt.ArrowCursor
        onPressed: event => {
            grabbed = Qt.point(event.x, event.y)
            grabbedBeside = !stage.isOnPicture(grabbed)
            stage.forceActiveFocus(Qt.MouseFocusReason)
        }
        onPositionChanged: event => {
            if (!pressed || stage.zoom === 1)
                return
            stage.touched()
            stage.panBy(event.x - grabbed.x, event.y - grabbed.y)
            grabbed = Qt.point(event.x, event.y)
        }
        onClicked: event => {
            // Not where a picture was dragged from under the pointer.
            if (!stage.broken && grabbedBeside && !stage.isOnPicture(Qt.point(event.x, event.y)))
                stage.pressedBeside()
        }
        onDoubleClicked: event => {
            if (stage.zoom > 1)
                stage.reset()
            else
                stage.zoomTo(2.5, event.x - width / 2, event.y - height / 2)
        }
        onWheel: wheel => {
            if (wheel.modifiers & Qt.ControlModifier)
                stage.zoomTo(stage.zoom * Math.pow(1.0015, wheel.angleDelta.y), wheel.x - width / 2, wheel.y - height / 2)
            else
                stage.panBy(wheel.angleDelta.x / 2, wheel.angleDelta.y / 2)
        }
    }
    PinchHandler {
        property real from: 1

        target: null
        onActiveChanged: from = stage.zoom
        onActiveScaleChanged: stage.zoomTo(from * activeScale, centroid.position.x - stage.width / 2, centroid.position.y - stage.height / 2)
    }

    // Within its bounds: it fills the window.
    Item {
        anchors { fill: parent; margins: ring.distance }

        FocusRing {
            id: ring

            target: stage
        }
    }
    Spinner {
        anchors.centerIn: parent
        visible: stage.loading
        running: visible
    }
    EmptyState {
        objectName: "broken"
        anchors.centerIn: parent
        visible: stage.broken
        width: Math.min(parent.width, 360)
        iconName: "photo"
        title: qsTranslate("Loomstreet", "This picture couldn't be loaded")

        PushButton {
            objectName: "retry"
            text: qsTranslate("Loomstreet", "Try again")
            onClicked: stage.retry()
        }
    }
}
