pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Pictures in the whole window, one at a time.
ModalScope {
    id: lightbox

    required property WindowSession session

    readonly property var request: session.lightbox
    readonly property var images: request?.images ?? []
    property int index: 0

    function turn(by: int): void {
        if (images.length > 0)
            index = (index + by + images.length) % images.length
    }

    objectName: "lightbox"
    open: request !== undefined
    scrimOpacity: 0
    duration: Theme.durationHover
    name: request?.title ?? ""
    onCloseAsked: session.closeLightbox()
    onRequestChanged: index = request?.index ?? 0

    Keys.onLeftPressed: turn(LayoutMirroring.enabled ? 1 : -1)
    Keys.onRightPressed: turn(LayoutMirroring.enabled ? -1 : 1)

    Rectangle {
        anchors.fill: parent
        color: Theme.paper
        opacity: lightbox.progress
    }
    MouseArea {
        anchors.fill: parent
        onClicked: lightbox.session.closeLightbox()
    }
    Image {
        id: picture

        objectName: "picture"
        anchors { fill: parent; margins: Theme.space6; bottomMargin: Theme.space8 }
        visible: status === Image.Ready
        opacity: lightbox.progress
        asynchronous: true
        fillMode: Image.PreserveAspectFit
        source: PictureAddress.at(lightbox.images[lightbox.index] ?? "", PictureAddress.widthStep(Math.ceil(height * Theme.cardPictureRatio * Screen.devicePixelRatio)))
        sourceSize.height: height

        Accessible.role: Accessible.Graphic
        Accessible.name: qsTranslate("Loomstreet", "Picture %1 of %2").arg(lightbox.index + 1).arg(lightbox.images.length)
    }
    Spinner {
        anchors.centerIn: parent
        visible: picture.status === Image.Loading
        running: visible
    }
    Icon {
        anchors.centerIn: parent
        visible: picture.status === Image.Error || picture.status === Image.Null
        name: "photo"
        size: 28
        color: Theme.muted
    }
    IconButton {
        objectName: "previous"
        anchors { left: parent.left; leftMargin: Theme.space2; verticalCenter: parent.verticalCenter }
        visible: lightbox.images.length > 1
        iconName: "chevron.left"
        extent: Theme.targetPrimary
        text: qsTranslate("Loomstreet", "Previous")
        onClicked: lightbox.turn(-1)
    }
    IconButton {
        objectName: "next"
        anchors { right: parent.right; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }
        visible: lightbox.images.length > 1
        iconName: "chevron.right"
        extent: Theme.targetPrimary
        text: qsTranslate("Loomstreet", "Next")
        onClicked: lightbox.turn(1)
    }
    IconButton {
        id: close

        objectName: "close"
        anchors { right: parent.right; top: parent.top; margins: Theme.space2 }
        iconName: "xmark"
        text: qsTranslate("Loomstreet", "Close")
        onClicked: lightbox.session.closeLightbox()
    }
    TextLabel {
        anchors { bottom: parent.bottom; bottomMargin: Theme.space2 + 4; horizontalCenter: parent.horizontalCenter }
        visible: lightbox.images.length > 1
        text: "%1 / %2".arg(lightbox.index + 1).arg(lightbox.images.length)
        type: Theme.type.label
        figures: true
        opacity: lightbox.progress
    }
    firstFocus: close
}
