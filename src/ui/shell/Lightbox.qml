pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Pictures in the whole window, one at a time: enlarged, moved about, or one after the other by themselves.
ModalScope {
    id: lightbox

    required property WindowSession session

    readonly property var request: session.lightbox
    readonly property var images: request?.images ?? []
    readonly property bool several: images.length > 1
    property int index: 0
    property bool playing: false

    // What the shopper does by hand ends the show.
    function show(picture: int): void {
        playing = false
        if (images.length > 0)
            index = (picture + images.length) % images.length
    }
    function turn(by: int): void { show(index + by) }
    function play(): void { playing = several && !playing }

    objectName: "lightbox"
    open: request !== undefined
    scrimOpacity: 0
    duration: Theme.durationHover
    name: request?.title ?? ""
    firstFocus: stage
    onCloseAsked: session.closeLightbox()
    onRequestChanged: {
        index = request?.index ?? 0
        // Nothing moves by itself where the desktop asks for stillness, unless it is asked to.
        playing = several && (request?.isSlideshow ?? false) && !Theme.reducedMotion
    }
    onIndexChanged: stage.reset()

    function sideways(event: var, by: int): void {
        if (event.modifiers & Qt.ShiftModifier)
            stage.panBy(-by * stage.stride, 0)
        else
            turn(LayoutMirroring.enabled ? -by : by)
    }

    Keys.onLeftPressed: event => sideways(event, -1)
    Keys.onRightPressed: event => sideways(event, 1)
    Keys.onPressed: event => {
        switch (event.key) {
        case Qt.Key_Home: show(0); break
        case Qt.Key_End: show(images.length - 1); break
        case Qt.Key_PageUp: turn(-1); break
        case Qt.Key_PageDown: turn(1); break
        case Qt.Key_Space: play(); break
        case Qt.Key_Plus:
        case Qt.Key_Equal: stage.zoomBy(stage.step); break
        case Qt.Key_Minus: stage.zoomBy(1 / stage.step); break
        case Qt.Key_0: stage.reset(); break
        case Qt.Key_Up: stage.panBy(0, stage.stride); break
        case Qt.Key_Down: stage.panBy(0, -stage.stride); break
        default: return
        }
        event.accepted = true
    }

    Timer {
        objectName: "slideshow"
        interval: 4000
        repeat: true
        running: lightbox.open && lightbox.playing && !stage.loading
        onTriggered: lightbox.index = (lightbox.index + 1) % lightbox.images.length
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
        opacity: lightbox.progress
    }
    LightboxStage {
        id: stage

        anchors { left: parent.left; right: parent.right; top: bar.bottom; bottom: foot.top }
        opacity: lightbox.progress
        address: lightbox.images[lightbox.index] ?? ""
        // The neighbours, so that they are there when they are turned to.
        next: lightbox.open && lightbox.several ? lightbox.images[(lightbox.index + 1) % lightbox.images.length] : ""
        previous: lightbox.open && lightbox.several ? lightbox.images[(lightbox.index + lightbox.images.length - 1) % lightbox.images.length] : ""
        description: {
            const place = lightbox.several ? qsTranslate("Loomstreet", "Picture %L1 of %L2").arg(lightbox.index + 1).arg(lightbox.images.length) : ""
            return [lightbox.request?.title ?? "", place].filter(text => text !== "").join(", ")
        }
        onTouched: lightbox.playing = false
        onPressedBeside: lightbox.session.closeLightbox()
    }
    Item {
        id: bar

        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: Theme.layoutTopBar
        opacity: lightbox.progress

        TextLabel {
            anchors { left: parent.left; leftMargin: Theme.space3; right: tools.left; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }
            text: lightbox.name
            type: Theme.type.panel
            Accessible.role: Accessible.Heading
        }
        Row {
            id: tools

            anchors { right: parent.right; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }
            spacing: Theme.spaceHalf

            IconButton {
                objectName: "play"
                visible: lightbox.several
                iconName: lightbox.playing ? "pause" : "play"
                on: lightbox.playing
                text: lightbox.playing ? qsTranslate("Loomstreet", "Pause slideshow") : qsTranslate("Loomstreet", "Play slideshow")
                shortcut: qsTranslate("Loomstreet", "Space")
                onClicked: lightbox.play()
            }
            IconButton {
                objectName: "zoomOut"
                enabled: stage.zoom > 1
                iconName: "minus"
                text: qsTranslate("Loomstreet", "Zoom out")
                shortcut: "−"
                onClicked: stage.zoomBy(1 / stage.step)
            }
            IconButton {
                objectName: "zoomIn"
                enabled: stage.ready && stage.zoom < stage.most
                iconName: "plus"
                text: qsTranslate("Loomstreet", "Zoom in")
                shortcut: "+"
                onClicked: stage.zoomBy(stage.step)
            }
            IconButton {
                objectName: "close"
                iconName: "xmark"
                text: qsTranslate("Loomstreet", "Close")
                shortcut: qsTranslate("Loomstreet", "Esc")
                onClicked: lightbox.session.closeLightbox()
            }
        }
    }
    LightboxArrow {
        objectName: "previous"
        anchors { left: parent.left; leftMargin: Theme.space2; verticalCenter: stage.verticalCenter }
        visible: lightbox.several
        iconName: "chevron.left"
        covers: stage.zoom > 1
        text: qsTranslate("Loomstreet", "Previous")
        onClicked: lightbox.turn(-1)
    }
    LightboxArrow {
        objectName: "next"
        anchors { right: parent.right; rightMargin: Theme.space2; verticalCenter: stage.verticalCenter }
        visible: lightbox.several
        iconName: "chevron.right"
        covers: stage.zoom > 1
        text: qsTranslate("Loomstreet", "Next")
        onClicked: lightbox.turn(1)
    }
    Item {
        id: foot

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: Theme.space6
        opacity: lightbox.progress

        TextLabel {
            anchors.centerIn: parent
            visible: lightbox.several
            text: "%1 / %2".arg(lightbox.index + 1).arg(lightbox.images.length)
            type: Theme.type.label
            figures: true
            // Not turned around where the words are.
            LayoutMirroring.enabled: false
        }
    }
}
