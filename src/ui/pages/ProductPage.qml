pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// A piece: its pictures and tables on the left, what one chooses and pays in a column of its own that stays.
// Narrow windows stack them.
PageBase {
    id: page

    readonly property ProductModel product: context.model
    readonly property int phase: product ? product.phase : ProductModel.Idle
    // A card it was opened from is enough to begin with.
    readonly property bool hasContent: product ? product.title !== "" && phase !== ProductModel.Missing : false
    readonly property ProductCompanions companions: context.beside
    readonly property bool companionsNear: left.visible && left.contentY + 2 * left.height > body.y + rails.y
    readonly property int gap: narrow ? Theme.layoutPagePaddingNarrow : Theme.layoutPagePaddingBesidePane

    title: phase === ProductModel.Missing ? qsTranslate("Loomstreet", "Not available") : product?.title ?? ""
    settled: gallery.settled || phase === ProductModel.Missing || phase === ProductModel.Failed
    flickable: left

    // What had the keyboard when the page was left; at first, and before there is anything to see, the pictures.
    function takeFocus(): void {
        page.forceActiveFocus()
        if (Window.activeFocusItem === page)
            gallery.forceActiveFocus()
    }
    function reload(): void {
        product.reload()
        if (companions.isLoaded)
            companions.reload()
    }
    function begin(): void {
        if (!shown || !product)
            return
        product.load()
        if (context.beside === null)
            context.beside = app.makeCompanions(context, product.handle)
        companions.loadSold()
        approach()
    }
    // Nobody waits for what is far below, and the piece itself comes first.
    function approach(): void {
        if (shown && companions && companionsNear && product.isComplete)
            companions.load()
    }

    onShownChanged: begin()
    onCompanionsNearChanged: approach()
    Component.onCompleted: begin()

    Connections {
        target: page.product
        function onProductChanged(): void { page.approach() }
    }

    OfflineStrip {
        id: strip

        objectName: "strip"
        offline: page.product?.isOffline ?? false
        canRetry: true
        onRetry: page.product.reload()
        width: parent.width
        visible: page.hasContent && page.product.errorText !== ""
        text: page.product ? page.product.errorText : ""
    }

    Flickable {
        id: left

        objectName: "left"
        anchors { left: parent.left; top: strip.visible ? strip.bottom : parent.top; bottom: parent.bottom }
        width: parent.width - (page.narrow ? 0 : buy.width)
        visible: page.hasContent
        contentHeight: body.height + 2 * page.gap
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        ScrollBar.vertical: ScrollBar {}

        FocusFollower { flickable: left }

        Column {
            id: body

            x: page.gap
            y: page.narrow ? page.gap : Theme.space2
            width: left.width - 2 * page.gap
            spacing: Theme.space3

            ProductGallery {
                id: gallery

                width: parent.width
                product: page.product
                narrow: page.narrow
                focus: true
                onEnlarged: index => page.session.openLightbox(page.product.pictures, index, page.product.title)
            }
            Item {
                id: stacked

                width: parent.width
                height: page.narrow ? box.height : 0
                visible: page.narrow
            }
            Grid {
                id: facts

                readonly property bool beside: columns > 1

                width: parent.width
                columns: reviews.visible && sizes.visible && width >= 640 * Theme.textScale ? 2 : 1
                columnSpacing: Theme.space4
                rowSpacing: Theme.space4

                readonly property real cellWidth: (width - (columns - 1) * columnSpacing) / columns

                SizeTables {
                    id: sizes

                    width: facts.cellWidth
                    visible: page.product ? page.product.sizeTables.length > 0 : false
                    product: page.product
                }
                ProductReviews {
                    id: reviews

                    objectName: "reviews"
                    width: facts.cellWidth
                    visible: page.product ? Object.keys(page.product.reviews).length > 0 : false
                    summary: page.product ? page.product.reviews : ({})
                    onPictureOpened: (pictures, index) => page.session.openLightbox(pictures, index, page.product.title)
                }
            }
            CompanionRails {
                id: rails

                width: parent.width
                topPadding: Theme.space2
                visible: page.product ? page.product.isComplete : false
                companions: page.companions
                previewed: page.previewed
                wishlist: page.app.wishlist
                onOpened: (handle, item, mode) => page.router.openPiece(handle, item, mode)
                onHideAsked: (handle, title) => page.app.notInterested.hide(handle, title)
            }
        }
    }

    Flickable {
        id: buy

        objectName: "buyColumn"
        anchors { right: parent.right; top: left.top; bottom: parent.bottom }
        visible: page.hasContent && !page.narrow
        width: Theme.layoutBuyBox + page.gap
        contentHeight: box.height + Theme.space2 + page.gap
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        ScrollBar.vertical: ScrollBar {}

        FocusFollower { flickable: buy }

        Item {
            id: column

            anchors { left: parent.left; right: parent.right; top: parent.top; leftMargin: Theme.space2 + 4; rightMargin: page.gap; topMargin: Theme.space2 }
            height: box.height
        }
    }
    BuyBox {
        id: box

        parent: page.narrow ? stacked : column
        width: parent.width
        app: page.app
        product: page.product
        companions: page.companions
        session: page.session
        onAdded: page.session.isCartOpen = true
        onCompareAsked: page.router.openCompare([page.product.handle])
    }
    Hairline {
        anchors { left: buy.left; top: buy.top; bottom: parent.bottom; topMargin: Theme.space2 }
        visible: buy.visible
    }

    ProductSkeleton {
        anchors.fill: parent
        shown: !page.hasContent && (page.phase === ProductModel.Loading || page.phase === ProductModel.Idle)
        padding: page.gap
        narrow: page.narrow
    }
    ErrorState {
        objectName: "error"
        anchors.centerIn: parent
        visible: page.phase === ProductModel.Failed && !page.hasContent
        width: Math.min(parent.width, 480)
        sentence: page.product?.errorText ?? ""
        takesFocus: page.shown
        onRetry: page.product.reload()
    }
    PieceMissing {
        objectName: "missing"
        anchors.centerIn: parent
        visible: page.phase === ProductModel.Missing
        width: Math.min(parent.width, 480)
        market: page.app.market

        PushButton {
            text: qsTranslate("Loomstreet", "New In")
            onClicked: page.router.selectItem(1)
        }
        PushButton {
            text: qsTranslate("Loomstreet", "Explore")
            onClicked: page.router.selectItem(0)
        }
    }
}
