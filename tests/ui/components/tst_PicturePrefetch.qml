import QtQuick
import QtTest
import Loomstreet.Components
import Loomstreet.Testing

TestCase {
    id: test

    readonly property string host: "https://pictures.test/"

    name: "PicturePrefetch"
    width: 400
    height: 400
    visible: true
    when: windowShown

    Component { id: picture; Picture { width: 184; height: implicitHeight } }
    // Longer than a pointer has to rest.
    Timer { id: longer; interval: 400 }

    function asked(name) { return Pictures.requests().filter(address => address.indexOf("/" + name) > 0) }

    function init() {
        Pictures.forget()
        PicturePrefetch.enabled = true
        PicturePrefetch.pageWidth = 630
    }
    function cleanup() {
        PicturePrefetch.expect([])
        Pictures.release()
        tryVerify(() => !PicturePrefetch.isBusy())
    }

    function test_thePicturesOfAPieceAreFetchedAsItsPageWillAskForThem() {
        const pictures = [host + "one?v=1", "http://pictures.test/open", "", "file:///etc/passwd", host + "two"]
        PicturePrefetch.expect(pictures)
        tryVerify(() => asked("two").length === 1)
        compare(Pictures.requests(), [PictureAddress.at(host + "one?v=1", 630), PictureAddress.at(host + "two", 630)])
        tryVerify(() => !PicturePrefetch.isBusy())

        PicturePrefetch.pageWidth = 0 // nobody knows
        PicturePrefetch.expect([host + "unknown"])
        tryVerify(() => !PicturePrefetch.isBusy())
        compare(asked("unknown").length, 0)
    }

    function test_whatIsNotDoneIsDroppedWhenTheShopperGoesElsewhere() {
        const former = [host + "passed"]
        PicturePrefetch.expect(former)
        PicturePrefetch.forget([host + "another"])
        verify(PicturePrefetch.isBusy(), "it is still expected")
        PicturePrefetch.forget(former)
        verify(!PicturePrefetch.isBusy())

        const many = []
        for (let i = 0; i < 20; ++i)
            many.push(host + i + "/late")
        PicturePrefetch.expect(many)
        tryVerify(() => asked("late").length === 4)
        PicturePrefetch.expect([host + "next"])
        tryVerify(() => asked("next").length === 1)
        compare(asked("late").length, 4)
        compare(asked("passed").length, 0)
    }

    function test_whatIsOnScreenComesFirst() {
        const item = createTemporaryObject(picture, test, { address: host + "seen/late" })
        tryVerify(() => asked("seen").length === 1)
        PicturePrefetch.expect([host + "ahead"])
        longer.start()
        tryVerify(() => !longer.running)
        compare(asked("ahead").length, 0)
        Pictures.release()
        tryVerify(() => asked("ahead").length === 1)

        const gone = createTemporaryObject(picture, test, { address: host + "gone" })
        gone.destroy() // and with it the waiting
        PicturePrefetch.expect([host + "after"])
        tryVerify(() => asked("after").length === 1)
    }

    function test_nothingIsFetchedAheadWhereItIsOff() {
        PicturePrefetch.enabled = false
        PicturePrefetch.expect([host + "off"])
        verify(!PicturePrefetch.isBusy())
        PicturePrefetch.enabled = true
        PicturePrefetch.expect([host + "on"])
        verify(PicturePrefetch.isBusy())
        PicturePrefetch.enabled = false
        verify(!PicturePrefetch.isBusy())
    }

    function test_aPictureThatIsNotDueWaitsAndThenStays() {
        const item = createTemporaryObject(picture, test, { due: false, address: host + "waits" })
        verify(item.loading && !item.awaited)
        item.due = true
        tryCompare(item, "ready", true)
        item.due = false
        verify(item.ready)
        item.address = host + "another"
        verify(!item.ready && !item.awaited)
        compare(asked("another").length, 0)
        item.due = true
        tryCompare(item, "ready", true)
        compare(asked("waits").length, 1)
    }
}
