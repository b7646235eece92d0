pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What one chooses of a piece and what it costs, and what else is worth knowing before.
Column {
    id: box

    property AppModel app
    property ProductModel product
    property WindowSession session
    property ProductCompanions companions: null
    // The way to buy the piece stands elsewhere.
    property bool buysElsewhere: false

    signal added()
    signal compareAsked()

    readonly property SizeAdviceModel advice: app && product ? app.makeSizeAdvice(product, product) : null
    readonly property var reviews: product?.reviews ?? ({})
    readonly property var service: product?.service ?? ({})

    spacing: Theme.space2

    Column {
        width: parent.width
        spacing: Theme.spaceHalf

        TextLabel {
            objectName: "designer"
            width: parent.width
            visible: text !== ""
            text: box.product.designer
            type: Theme.type.overline
            color: Theme.muted
        }
        TextLabel {
            objectName: "title"
            width: parent.width
            text: box.product.title
            type: Theme.type.heading
            wrapMode: Text.Wrap
            maximumLineCount: 3
            Accessible.role: Accessible.Heading
        }
        StarRating {
            objectName: "rating"
            anchors.left: parent.left
            visible: (box.reviews.rating ?? 0) > 0
            value: box.reviews.rating ?? 0
            note: {
                const rating = Number(box.reviews.rating ?? 0).toLocaleString(Qt.locale(), "f", 1)
                const count = box.reviews.count
                if (count === undefined)
                    return rating
                return rating + "  " + qsTranslate("Loomstreet", "%Ln reviews", "", count)
            }
        }
    }
    // Beside the price, so that nothing moves when it comes.
    Item {
        width: parent.width
        height: prices.height

        PriceLabel {
            id: prices

            objectName: "price"
            anchors.left: parent.left
            price: box.product.price
            formerPrice: box.product.formerPrice
            type: Theme.type.priceLarge
            room: box.width
        }
        TextLabel {
            objectName: "sold"
            anchors { right: parent.right; bottom: prices.bottom; bottomMargin: (prices.height - height) / 3 }
            visible: (box.companions?.unitsSold ?? 0) > 0 && prices.width + Theme.space2 + implicitWidth <= box.width
            text: qsTranslate("Loomstreet", "%Ln sold", "", box.companions?.unitsSold ?? 0)
            type: Theme.type.small
            figures: true
            color: Theme.muted
        }
    }
    FactRow {
        objectName: "presale"
        width: parent.width
        visible: title !== ""
        iconName: "calendar"
        title: box.product.presale === "" ? "" : qsTranslate("Loomstreet", "Presale")
        note: box.product.presale
        divided: false
    }

    // By number: rows stay while what is chosen in them changes.
    Repeater {
        model: box.product.options.length

        OptionRow {
            required property int index

            width: box.width
            group: box.product.options[index]
            advice: box.advice
            hint: isSwatch || box.product.sizeHint === "" || group?.name !== box.advice?.option ? ""
                  : qsTranslate("Loomstreet", "Most chosen: %1").arg(Bidi.isolate(box.product.sizeHint))
            onChosen: value => box.product.choose(group.name, value)
        }
    }
    TextLabel {
        objectName: "stock"
        width: parent.width
        visible: text !== ""
        text: box.product.isSoldOut ? qsTranslate("Loomstreet", "Sold out") : box.product.stockText
        type: Theme.type.small
        color: box.product.isSoldOut ? Theme.muted : Theme.warning
    }

    BuyButtons {
        width: parent.width
        visible: !box.buysElsewhere
        app: box.app
        product: box.buysElsewhere ? null : box.product
        session: box.session
        onAdded: box.added()
    }
    PushButton {
        objectName: "styleProduct"
        width: parent.width
        size: "primary"
        iconName: "sparkles"
        on: box.session.isMiraDocked
        enabled: box.product.title !== ""
        text: qsTranslate("Loomstreet", "Help me style this")
        onClicked: {
            box.app.mira.styleProduct(box.product.item)
            box.session.isMiraDocked = true
        }
    }
    Flow {
        id: ways

        x: LayoutMirroring.enabled ? 0 : -compare.leftPadding // the icons stand below those of the others
        width: parent.width + compare.leftPadding
        spacing: Theme.spaceHalf

        PushButton {
            id: compare

            objectName: "compareProduct"
            width: Math.min(implicitWidth, ways.width)
            size: "small"
            kind: "quiet"
            iconName: "square.grid.2x2"
            text: qsTranslate("Loomstreet", "Compare")
            Accessible.description: qsTranslate("Loomstreet", "Beside pieces you saved or viewed")
            onClicked: box.compareAsked()
        }
        PriceAlert {
            width: Math.min(implicitWidth, ways.width)
            app: box.app
            product: box.product
            session: box.session
        }
    }
    Column {
        width: parent.width

        FactRow {
            width: parent.width
            iconName: "truck"
            title: qsTranslate("Loomstreet", "FREE worldwide shipping")
            note: qsTranslate("Loomstreet", "On carts of %1 or more").arg(Bidi.isolate(box.product.freeShippingFrom))
        }
        FactRow {
            objectName: "returns"
            width: parent.width
            iconName: "return"
            title: box.service.returns ?? ""
            note: box.service.note ?? ""
        }
        FactRow {
            objectName: "service"
            width: parent.width
            visible: title !== ""
            iconName: "info"
            title: (box.service.service ?? "") === "" ? "" : qsTranslate("Loomstreet", "Good to know")
            note: box.service.service ?? ""
        }
        FactRow {
            width: parent.width
            iconName: "shield"
            title: qsTranslate("Loomstreet", "Import duties included")
            note: qsTranslate("Loomstreet", "Shipping calculated at checkout")
        }
        ProductStory {
            width: parent.width
            product: box.product
        }
    }
}
