pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Pages
import Loomstreet.Theme

// The piece beside the page: its pictures, what one chooses of it, and below them, always in reach, the way to buy it.
FocusScope {
    id: pane

    required property AppModel app
    required property WindowSession session

    readonly property Router router: session.selected
    // As the router says; what is shown stays while the pane closes.
    readonly property var request: session.isPreviewShown ? router.preview : null
    readonly property string handle: request?.handle ?? ""
    property ProductModel product: null
    property ProductCompanions companions: null
    property QtObject owner: null

    readonly property int phase: product ? product.phase : ProductModel.Idle
    readonly property bool hasContent: product ? product.title !== "" && phase !== ProductModel.Missing : false

    function show(): void {
        if (handle === "")
            return
        const former = owner
        owner = ownerOfModel.createObject(pane)
        product = app.makeProduct(owner, handle, request.item)
        companions = app.makeCompanions(owner, handle)
        product.load()
        companions.loadSold()
        if (box.status === Loader.Null) {
            const product = Qt.binding(() => pane.product)
            const companions = Qt.binding(() => pane.companions)
            box.setSource("qrc:/qt/qml/Loomstreet/Pages/BuyBox.qml", { app: app, product: product, companions: companions, session: session, buysElsewhere: true })
        }
        content.contentY = 0
        if (former)
            former.destroy()
    }

    objectName: "preview"
    onHandleChanged: show()
    Component.onCompleted: show()

    Keys.onEscapePressed: router.closePreview()

    Accessible.role: Accessible.Pane
    Accessible.name: qsTranslate("Loomstreet", "Side panel")

    Component {
        id: ownerOfModel

        QtObject {}
    }
    Rectangle {
        anchors.fill: parent
        color: Theme.surface
    }
    Item {
        id: header

        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: 48

        TextLabel {
            objectName: "previewTitle"
            anchors { left: parent.left; leftMargin: Theme.space3; right: actions.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
            text: pane.product?.title ?? ""
            type: Theme.type.label
            Accessible.role: Accessible.Heading
        }
        Row {
            id: actions

            anchors { right: parent.right; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }
            spacing: Theme.spaceHalf

            IconButton {
                objectName: "previewFull"
                iconName: "expand"
                text: qsTranslate("Loomstreet", "Open full page")
                shortcut: "Ctrl Shift Return"
                onClicked: pane.router.expandPreview()
            }
            IconButton {
                objectName: "previewTab"
                iconName: "open.tab"
                text: qsTranslate("Loomstreet", "Open in new tab")
                shortcut: "Ctrl Shift O"
                onClicked: pane.router.openPiece(pane.request.handle, pane.request.item, OpenModes.NewTab)
            }
            IconButton {
                objectName: "previewClose"
                iconName: "xmark"
                text: qsTranslate("Loomstreet", "Close Side Panel")
                shortcut: "Ctrl Shift W"
                onClicked: pane.router.closePreview()
            }
        }
        Hairline {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        }
    }

    OfflineStrip {
        id: strip

        objectName: "previewStrip"
        anchors { left: parent.left; right: parent.right; top: header.bottom }
        offline: pane.product?.isOffline ?? false
        canRetry: true
        visible: pane.hasContent && pane.product.errorText !== ""
        text: pane.product?.errorText ?? ""
        onRetry: pane.product.reload()
    }
    Flickable {
        id: content

        objectName: "previewContent"
        anchors { left: parent.left; right: parent.right; top: strip.visible ? strip.bottom : header.bottom; bottom: foot.top }
        visible: pane.hasContent
        contentHeight: body.height + 2 * Theme.space3
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        ScrollBar.vertical: ScrollBar {}

        FocusFollower { flickable: content }

        Column {
            id: body

            x: Theme.space3
            y: Theme.space2 + 4
            width: content.width - 2 * Theme.space3
            spacing: Theme.space3

            ProductGallery {
                width: parent.width
                // Low enough that the sizes are in sight.
                height: Math.min(implicitHeight, Math.max(240, Math.round(content.height / 2)))
                product: pane.product
                focus: true
                onEnlarged: index => pane.session.openLightbox(pane.product.pictures, index, pane.product.title)
            }
            // It needs a piece from the beginning.
            Loader {
                id: box

                width: parent.width
            }
            Connections {
                target: box.item
                function onCompareAsked(): void { pane.router.openCompare([pane.product.handle]) }
            }
        }
    }

    Item {
        id: foot

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: pane.hasContent ? buttons.height + 2 * Theme.space2 : 0
        visible: pane.hasContent

        Hairline {
            anchors { left: parent.left; right: parent.right; top: parent.top }
        }
        BuyButtons {
            id: buttons

            anchors { left: parent.left; right: parent.right; margins: Theme.space3; verticalCenter: parent.verticalCenter }
            app: pane.app
            product: pane.product
            session: pane.session
            brief: true
            onAdded: pane.session.isCartOpen = true
        }
    }

    ProductSkeleton {
        anchors { fill: parent; topMargin: header.height }
        shown: !pane.hasContent && (pane.phase === ProductModel.Loading || pane.phase === ProductModel.Idle)
        padding: Theme.space3
        narrow: true
    }
    ErrorState {
        objectName: "previewError"
        anchors.centerIn: parent
        visible: pane.phase === ProductModel.Failed && !pane.hasContent
        width: parent.width - 2 * Theme.space3
        sentence: pane.product?.errorText ?? ""
        onRetry: pane.product.reload()
    }
    PieceMissing {
        objectName: "previewMissing"
        anchors.centerIn: parent
        visible: pane.phase === ProductModel.Missing
        width: parent.width - 2 * Theme.space3
        market: pane.app.market
    }

    // Taken hold of at its edge it becomes wider or narrower.
    Hairline {
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
    }
    Item {
        id: edge

        function widen(by: real): void { pane.router.previewWidth = pane.router.previewWidth + by }

        objectName: "previewEdge"
        anchors { left: parent.left; leftMargin: -4; top: parent.top; bottom: parent.bottom }
        width: 8
        activeFocusOnTab: true

        Keys.onLeftPressed: widen(LayoutMirroring.enabled ? -20 : 20)
        Keys.onRightPressed: widen(LayoutMirroring.enabled ? 20 : -20)

        Accessible.role: Accessible.Splitter
        Accessible.name: qsTranslate("Loomstreet", "Width of the side panel")
        Accessible.focusable: true
        Accessible.onIncreaseAction: widen(20)
        Accessible.onDecreaseAction: widen(-20)

        HoverHandler { cursorShape: Qt.SplitHCursor }
        DragHandler {
            id: drag

            property real from: 0

            target: null
            dragThreshold: 0
            onActiveChanged: if (active) from = pane.router.previewWidth
            onActiveTranslationChanged: {
                if (active)
                    pane.router.previewWidth = from + (edge.LayoutMirroring.enabled ? 1 : -1) * activeTranslation.x
            }
        }
        Rectangle {
            anchors.centerIn: parent
            width: 4
            height: 40
            radius: 2
            color: drag.active || edge.activeFocus ? Theme.accent : Theme.border
        }
    }
}
