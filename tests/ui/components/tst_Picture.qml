import QtQuick
import QtTest
import Loomstreet.Components
import Loomstreet.Testing
import Loomstreet.Theme

TestCase {
    id: test

    name: "Picture"
    width: 600
    height: 500
    visible: true
    when: windowShown

    Component { id: picture; Picture { width: 184; height: implicitHeight } }

    function asked(name) { return Pictures.requests().filter(address => address.indexOf("/" + name) > 0) }
    function step(width) { return PictureAddress.widthStep(width * Screen.devicePixelRatio) }

    function init() { Pictures.forget() }
    function cleanup() { Theme.appearance = "system" }

    function test_itAsksForASharpPictureOfItsWidthAndFadesItIn() {
        const item = createTemporaryObject(picture, test, { address: "https://pictures.test/asked?v=1" })
        verify(item.loading && findChild(item, "ground").color === Theme.skeleton)
        tryCompare(item, "ready", true)
        compare(asked("asked"), ["https://pictures.test/asked?v=1&width=" + step(184)])
        compare(findChild(item, "image").implicitWidth, step(184), "every pixel of it is used")
        tryCompare(findChild(item, "image"), "opacity", 1)
        verify(!findChild(item, "ground").visible)
        compare(item.height, Math.round(184 * 4 / 3))
    }

    function test_wideningKeepsThePictureOnScreenUntilTheSharperOneHasCome() {
        const item = createTemporaryObject(picture, test, { address: "https://pictures.test/grows" })
        tryCompare(item, "ready", true)
        tryCompare(findChild(item, "image"), "opacity", 1)

        item.width = 190
        compare(asked("grows").length, 1, "the same step is not asked for again")
        item.width = 400
        verify(item.ready, "the picture stays")
        tryVerify(() => asked("grows").length === 2)
        compare(asked("grows")[1], "https://pictures.test/grows?width=" + step(400))
        tryCompare(findChild(item, "image"), "shownWidth", step(400))
        verify(item.ready)
        compare(findChild(item, "image").opacity, 1, "and nothing flickers")

        item.width = 184
        compare(asked("grows").length, 2, "a smaller one is never asked for")
    }

    function test_anotherAddressNeverShowsTheOldPicture() {
        const item = createTemporaryObject(picture, test, { address: "https://pictures.test/one" })
        tryCompare(item, "ready", true)
        item.address = "https://pictures.test/two/late"
        verify(!item.ready && item.loading)
        verify(findChild(item, "ground").visible)
        Pictures.release()
        tryCompare(item, "ready", true)
        item.address = ""
        verify(item.missing && !item.ready)
    }
}
