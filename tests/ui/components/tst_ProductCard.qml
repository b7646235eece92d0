import QtQuick
import QtTest
import Loomstreet.Components
import Loomstreet.Testing
import Loomstreet.Theme

TestCase {
    id: test

    name: "ProductCard"
    width: 700
    height: 600
    visible: true
    when: windowShown

    Component {
        id: card

        ProductCard {
            width: 200
            designer: "Tallis & Rook"
            title: "Sabine bias slip dress"
            price: "$193.20"
            formerPrice: "$276.00"
            pictures: ["https://pictures.test/first", "https://pictures.test/second"]
            dots: ["#8fa48b"]
            label: "Final sale"
            reason: "For work"
            sizes: ["XS", "M"]
            canSave: true
        }
    }

    function init() {
        Pictures.forget()
        mouseMove(test, 690, 590)
    }

    // Where everything is, in the card's own points.
    function places(item, root) {
        let found = []
        for (let i = 0; i < item.children.length; ++i) {
            const child = item.children[i]
            const at = child.mapToItem(root, 0, 0)
            if (child.visible && child.objectName !== "" && ["bar", "second"].indexOf(child.objectName) < 0)
                found.push([child.objectName, at.x, at.y, child.width, child.height].join(" "))
            if (["bar", "second"].indexOf(child.objectName) < 0)
                found = found.concat(places(child, root))
        }
        return found
    }

    function test_nothingMovesUnderThePointer() {
        const item = createTemporaryObject(card, test)
        tryVerify(() => findChild(item, "picture").ready)
        tryVerify(() => !findChild(item, "ground").visible)
        const before = places(item, item).join("\n")
        const height = item.implicitHeight
        mouseMove(item, 100, 100)
        tryVerify(() => findChild(item, "bar").item !== null && findChild(item, "bar").item.opacity === 1)
        tryVerify(() => findChild(item, "second").item !== null && findChild(item, "second").item.opacity === 1)
        compare(places(item, item).join("\n"), before)
        compare(item.implicitHeight, height)
        compare(findChild(item, "sizes").text, "\u2068XS\u2069\u2003\u2068M\u2069")

        mouseMove(test, 690, 590)
        tryVerify(() => findChild(item, "bar").item.opacity === 0 && findChild(item, "second").item.opacity === 0)
    }

    function test_theSecondPictureIsAskedForOnlyWhenItIsWanted() {
        const item = createTemporaryObject(card, test)
        item.pictures = ["https://pictures.test/wanted", "https://pictures.test/wanted2"]
        const asked = () => Pictures.requests().filter(address => address.indexOf("wanted") > 0)
        tryVerify(() => findChild(item, "picture").ready)
        compare(asked().length, 1)
        mouseMove(item, 100, 100)
        tryVerify(() => asked().length === 2)
        compare(asked()[1], "https://pictures.test/wanted2?width="
                + PictureAddress.widthStep(200 * Screen.devicePixelRatio))
    }


    function test_whatIsShownIsAlsoSaid() {
        const item = createTemporaryObject(card, test)
        compare(AccessibleProbe.name(item), "Tallis & Rook, Sabine bias slip dress, "
                + "\u2068$193.20\u2069, was \u2068$276.00\u2069, Final sale, For work")
        item.soldOut = true
        compare(findChild(item, "label").text, "Sold out", "one label only, and this one first")
        verify(AccessibleProbe.name(item).indexOf("Sold out") > 0)
    }

    function test_aPriceIsNeverCutShort() {
        const item = createTemporaryObject(card, test, {
            width: 176, price: "IDR 13.198.000", formerPrice: "IDR 14.250.000"
        })
        verify(!findChild(item, "price").truncated)
        verify(!findChild(item, "formerPrice").visible, "what does not fit is only said")
        verify(AccessibleProbe.name(item).indexOf("14.250.000") > 0)
    }
}
