import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A picture of a piece, from a https address: cropped to its frame with the top kept, asked for at the width it is
// shown at, quiet while it loads and where there is none. Its frame never depends on what arrives.
Item {
    id: picture

    property string address
    property real ratio: Theme.cardPictureRatio // width over height
    property bool soldOut: false
    // What lies behind the rounded corners.
    property color backdrop: Theme.paper
    property int radius: Theme.radiusPicture
    property string description // for assistive tools, where no words beside it say the same
    // It may be loaded: one that is not in sight yet may have to wait until it is.
    property bool due: true

    readonly property bool missing: PictureAddress.at(address, 1) === ""
    readonly property bool ready: front.status === Image.Ready
    readonly property bool broken: !missing && front.status === Image.Error
    readonly property bool loading: !missing && !broken && !ready
    readonly property bool awaited: front.status === Image.Loading
    property bool counted: false // among those that are waited for

    // In pixels, not points, and one of a few steps.
    readonly property int wantedWidth: PictureAddress.widthStep(Math.ceil(width * Screen.devicePixelRatio))

    // Loads from the start, as after a failure.
    function load(): void {
        sharper.source = ""
        front.show(due ? PictureAddress.at(address, wantedWidth) : "", wantedWidth, ratio)
        front.appears = front.status === Image.Loading
    }
    function count(): void {
        if (counted === awaited)
            return
        counted = awaited
        if (counted)
            PicturePrefetch.beginWaiting()
        else
            PicturePrefetch.endWaiting()
    }

    implicitWidth: Theme.cardMinimumWidth
    implicitHeight: Math.round(width / ratio)

    Accessible.role: Accessible.Graphic
    Accessible.name: description
    Accessible.ignored: description === ""

    onAddressChanged: load()
    onDueChanged: if (!ready) load()
    onAwaitedChanged: count()
    Component.onCompleted: count()
    Component.onDestruction: if (counted) PicturePrefetch?.endWaiting() // with the engine it may have gone first
    onWantedWidthChanged: {
        if (!ready)
            load()
        else if (wantedWidth > front.shownWidth) // what is sharp enough stays
            sharper.show(PictureAddress.at(address, wantedWidth), wantedWidth, ratio)
    }

    component Layer: Image {
        property string address
        property int shownWidth: 0
        property int shownHeight: 0

        // Sizes are taken down once: each change of them would load the picture anew.
        function show(url: string, pixels: int, ratio: real): void {
            source = ""
            shownWidth = pixels
            shownHeight = Math.ceil(Math.max(pixels / ratio, width > 0 ? pixels * height / width : 0))
            address = url
            source = url
        }

        fillMode: Image.PreserveAspectCrop
        verticalAlignment: Image.AlignTop
        asynchronous: true
        enabled: false
        // The address asks for these pixels, and a server that does not listen cannot make us hold more of them.
        sourceSize.width: shownWidth
        sourceSize.height: shownHeight
    }

    Rectangle {
        objectName: "ground"
        anchors.fill: parent
        enabled: false // it only shows, and the wheel need not ask it
        visible: !picture.ready || front.opacity < 1
        color: picture.loading ? Theme.skeleton : picture.ready ? picture.backdrop : Theme.sunken
    }
    Layer {
        id: front

        // Whether it comes after a wait: what was at hand is shown at once.
        property bool appears: false

        objectName: "image"
        anchors.fill: parent
        opacity: !picture.ready ? 0 : picture.soldOut ? Theme.alphaPictureSoldOut : 1

        Behavior on opacity {
            enabled: front.appears
            NumberAnimation { duration: Theme.durationHover }
        }
    }
    // A larger picture loads unseen, and takes the place of the one on screen when it has come.
    Layer {
        id: sharper

        anchors.fill: parent
        visible: false
        onStatusChanged: {
            if (status === Image.Ready) {
                front.appears = false
                front.show(address, shownWidth, picture.ratio)
            }
            if (status === Image.Ready || status === Image.Error)
                source = ""
        }
    }
    Icon {
        objectName: "instead"
        anchors.centerIn: parent
        enabled: false
        visible: name !== "" && picture.width >= 32
        name: picture.missing ? "hanger" : picture.broken ? "photo" : ""
        size: picture.width >= 120 ? 28 : 20
        color: Theme.border
    }
    Connections {
        target: PictureAddress
        enabled: picture.broken
        function onRetryAsked() { picture.load() }
    }
    Rectangle {
        objectName: "dim"
        anchors.fill: parent
        enabled: false
        visible: picture.ready && Theme.alphaPictureDim < 1
        color: "black"
        opacity: 1 - Theme.alphaPictureDim
    }
    // The corners: a line outside the picture whose inner edge is round.
    Rectangle {
        anchors.fill: parent
        anchors.margins: -1
        enabled: false
        visible: picture.radius > 0
        radius: picture.radius + 1
        color: "transparent"
        border.width: 1
        border.color: picture.backdrop
    }
}
