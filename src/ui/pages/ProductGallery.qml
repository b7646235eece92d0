pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The pictures of a piece: a column of small ones, and beside it as many large ones as fit. The arrow keys go
// through them, Enter and a click enlarge.
FocusScope {
    id: gallery

    property ProductModel product
    property bool narrow: false

    readonly property var pictures: product ? product.pictures : []
    readonly property int perView: measure.perView
    readonly property real pictureWidth: measure.pictureWidth
    readonly property bool settled: pictures.length === 0 || main.decoded >= Math.min(pictures.length, perView)

    signal enlarged(int index)

    // The picture of what is chosen comes forward when something else is chosen.
    readonly property int chosenIndex: product ? product.pictureIndex : -1
    // What is looked at stays when other pictures come around it.
    property string shownPicture

    function show(index: int): void {
        if (index < 0 || index >= pictures.length)
            return
        main.currentIndex = index
        shownPicture = pictures[index]
    }

    onChosenIndexChanged: show(chosenIndex)
    onPicturesChanged: {
        measure.several = pictures.length > 1 // first: pictures are asked for at the width they will have
        thumbs.model = pictures
        main.model = pictures
        const again = pictures.indexOf(shownPicture)
        if (again > 0)
            main.currentIndex = again
        placing.start()
    }
    onPictureWidthChanged: placing.start()

    GalleryMeasure {
        id: measure

        width: gallery.width
        several: false
        narrow: gallery.narrow
    }

    objectName: "gallery"
    implicitHeight: Math.round(pictureWidth / Theme.cardPictureRatio)
    activeFocusOnTab: true

    Accessible.role: Accessible.List
    Accessible.name: qsTranslate("Loomstreet", "Pictures")

    Keys.onLeftPressed: show(main.currentIndex + (LayoutMirroring.enabled ? 1 : -1))
    Keys.onRightPressed: show(main.currentIndex + (LayoutMirroring.enabled ? -1 : 1))
    Keys.onReturnPressed: enlarged(main.currentIndex)
    Keys.onEnterPressed: enlarged(main.currentIndex)

    ListView {
        id: thumbs

        objectName: "thumbs"
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
        width: measure.thumbWidth
        visible: measure.hasThumbs
        spacing: Theme.space1
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        currentIndex: main.currentIndex
        highlightMoveDuration: Theme.durationPage

        delegate: Pressable {
            id: thumb

            required property string modelData
            required property int index

            objectName: "thumb" + index
            width: measure.thumbWidth
            height: small.implicitHeight
            focusPolicy: Qt.NoFocus
            accessibleName: qsTranslate("Loomstreet", "Picture %L1 of %L2").arg(index + 1).arg(gallery.pictures.length)
            onClicked: gallery.show(index)

            contentItem: Picture {
                id: small

                width: thumb.width
                address: thumb.modelData
            }
            Rectangle {
                anchors { fill: parent; margins: 0 }
                visible: thumb.index === main.currentIndex
                radius: Theme.radiusPicture
                color: "transparent"
                border { width: Theme.strokeSelected; color: Theme.ink }
            }
        }
    }

    // Where the view comes to lie while pictures come or change their size is settled once they have it.
    Timer {
        id: placing

        interval: 0
        onTriggered: {
            main.forceLayout()
            main.positionViewAtIndex(main.currentIndex, ListView.Beginning)
        }
    }
    ListView {
        id: main

        // Pictures in view that have been decoded.
        property int decoded: 0

        objectName: "main"
        anchors { left: thumbs.visible ? thumbs.right : parent.left; leftMargin: thumbs.visible ? Theme.space1_5 : 0; right: parent.right }
        height: parent.height
        orientation: ListView.Horizontal
        spacing: Theme.space1_5
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        snapMode: ListView.SnapToItem
        highlightRangeMode: ListView.ApplyRange
        preferredHighlightBegin: 0
        preferredHighlightEnd: gallery.pictureWidth
        highlightMoveDuration: Theme.durationPanel
        cacheBuffer: PicturePrefetch.enabled ? Math.max(0, width) : 0
        onMovementEnded: gallery.show(indexAt(contentX + gallery.pictureWidth / 2, 0))

        delegate: Picture {
            id: large

            required property string modelData
            required property int index
            readonly property bool decodedNow: ready || broken || missing

            objectName: "picture" + index
            width: gallery.pictureWidth
            height: main.height
            address: modelData
            description: qsTranslate("Loomstreet", "%1, picture %L2").arg(gallery.product.title).arg(index + 1)
            onDecodedNowChanged: if (decodedNow && index < gallery.perView) ++main.decoded

            function enlarge(): void {
                gallery.show(index)
                gallery.enlarged(index)
            }
            Accessible.onPressAction: enlarge()

            TapHandler { onTapped: large.enlarge() }
            HoverHandler { cursorShape: Qt.PointingHandCursor }
        }
    }
    Picture {
        anchors.fill: main
        visible: gallery.pictures.length === 0
        address: ""
    }
    FocusRing {
        target: gallery
        anchors.fill: main
        controlRadius: Theme.radiusPicture
    }
    PictureLabel {
        objectName: "label"
        anchors { left: main.left; top: main.top; margins: Theme.space1_5 }
        text: gallery.product ? (gallery.product.isSoldOut ? qsTranslate("Loomstreet", "Sold out") : gallery.product.label) : ""
    }
    Rectangle {
        objectName: "counter"
        anchors { right: main.right; bottom: main.bottom; margins: Theme.space1_5 }
        visible: gallery.pictures.length > 1
        width: counter.implicitWidth + Theme.space2 + 4
        height: 24
        radius: height / 2
        color: Theme.surface

        TextLabel {
            id: counter

            anchors.centerIn: parent
            text: "%1 / %2".arg(main.currentIndex + 1).arg(gallery.pictures.length)
            type: Theme.type.captionStrong
            figures: true
        }
    }
}
