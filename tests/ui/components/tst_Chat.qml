import QtQuick
import QtTest
import Loomstreet.Components
import Loomstreet.Testing
import Loomstreet.Theme

TestCase {
    id: test

    name: "Chat"
    width: 400
    height: 600
    visible: true
    when: windowShown

    // The latest first, as a thread has them.
    Component {
        id: messages

        ListModel {
            function say(words: string, mine: bool): void { insert(0, { words: words, mine: mine }) }
        }
    }
    Component {
        id: lists

        ChatList {
            id: list

            property int endHeight: 40

            width: 400
            height: 300
            end: Item {
                width: list.width
                height: list.endHeight
            }
            delegate: ChatBubble {
                required property var model

                width: list.width
                text: model.words
                mine: model.mine
            }
        }
    }
    function lines(count) {
        return Array.from({ length: count }, (_, i) => "Line " + i).join("\n")
    }
    function listOf(count, words) {
        const model = createTemporaryObject(messages, test)
        for (let i = 0; i < count; ++i)
            model.say(words ?? lines(3), i % 2 === 0)
        const list = createTemporaryObject(lists, test, { model: model })
        tryVerify(() => list.atLatest)
        return list
    }
    // How far below the upper edge a message begins.
    function placeOf(list, index) {
        list.forceLayout()
        return list.itemAtIndex(index).y - list.contentY
    }
    function settle(list) {
        wait(0)
        wait(20)
    }

    function test_itOpensAtTheLatestAndShowsAShortReplyWhole() {
        const list = listOf(20)
        const latest = placeOf(list, 0)
        list.model.say("Of course.", false)
        settle(list)
        verify(list.follows)
        const shown = list.itemAtIndex(0)
        compare(Math.round(shown.y + shown.height - list.contentY), list.height - 40, "above what stands below it")
        verify(placeOf(list, 1) < latest)
    }

    function test_aReplyThatDoesNotFitIsShownFromItsBeginning() {
        const list = listOf(6)
        list.model.say(lines(60), false)
        settle(list)
        fuzzyCompare(placeOf(list, 0), Theme.space2, 1)
        verify(!list.follows, "the way to its end is offered")
        compare(list.unseen, 0)
        list.toLatest()
        verify(list.atLatest)
    }

    function test_whoReadsFurtherUpIsMovedByNothing_data() {
        return [
            { tag: "half way", up: 600 },
            { tag: "within the latest", up: 60 },
        ]
    }
    function test_whoReadsFurtherUpIsMovedByNothing(row) {
        const list = listOf(20, row.up < 100 ? lines(30) : undefined)
        list.scrollBy(-row.up)
        verify(!list.follows)
        const read = list.itemAt(200, list.contentY + 150)
        const place = read.y - list.contentY
        list.model.say("One", false)
        compare(read.y - list.contentY, place, "in the same turn")
        settle(list)
        list.model.say(lines(40), false)
        settle(list)
        fuzzyCompare(read.y - list.contentY, place, 1)
        compare(list.unseen, 2)
        list.endHeight = 120
        settle(list)
        fuzzyCompare(read.y - list.contentY, place, 1, "nor by what comes below")
        list.model.remove(list.count - 1)
        settle(list)
        fuzzyCompare(read.y - list.contentY, place, 1, "nor by what goes above")
        keyClick(Qt.Key_End)
    }

    function test_theKeysScrollToEitherEnd() {
        const list = listOf(20)
        list.forceActiveFocus()
        keyClick(Qt.Key_Home)
        verify(list.itemAtIndex(list.count - 1) !== null && list.atYBeginning && !list.follows)
        keyClick(Qt.Key_PageDown)
        verify(!list.atYBeginning)
        keyClick(Qt.Key_End)
        verify(list.follows)
        compare(list.unseen, 0)
    }

    function test_anItemThatIsGivenAnotherMessageShowsNothingOfTheFirst() {
        const model = createTemporaryObject(messages, test)
        for (let i = 0; i < 200; ++i)
            model.say(i === 199 ? "word ".repeat(2000) : i % 2 === 0 ? "Short " + i : lines(4), i % 2 === 0)
        const list = createTemporaryObject(lists, test, { model: model })
        tryVerify(() => list.atLatest)
        mouseClick(findChild(list.itemAtIndex(0), "expand"))
        verify(list.itemAtIndex(0).expanded)
        list.forceActiveFocus()
        for (const keys of [Array(60).fill(Qt.Key_PageUp), [Qt.Key_Home], [Qt.Key_End]]) {
            for (const key of keys)
                keyClick(key)
            settle(list)
            const shown = Array.from(list.contentItem.children).filter(child => child instanceof ChatBubble && child.visible)
            verify(shown.length > 0 && shown.length < 20)
            for (const bubble of shown) {
                const row = model.get(bubble.model.index)
                compare(bubble.text, row.words)
                verify(!bubble.expanded)
                const ground = findChild(bubble, "ground")
                const text = findChild(bubble, "text")
                compare(ground.visible, row.mine)
                compare(text.width, row.mine ? Math.ceil(text.implicitWidth) : 400)
                compare(text.x, row.mine ? 400 - text.width - Theme.space1_5 : 0)
            }
            compare(new Set(shown.map(bubble => bubble.y)).size, shown.length)
        }
    }

    Component { id: bubbles; ChatBubble { width: 400 } }
    function test_aBubbleIsAsWideAsItsWordsAndNoWiderThanItMay() {
        const bubble = createTemporaryObject(bubbles, test, { mine: true, text: "Hello" })
        const ground = findChild(bubble, "ground")
        verify(ground.width < 100)
        compare(ground.x + ground.width, 400)
        bubble.text = lines(1).repeat(80)
        verify(ground.width <= 0.86 * 400 + 1)
        const plain = createTemporaryObject(bubbles, test, { text: "Hello" })
        verify(!findChild(plain, "ground").visible)
        compare(findChild(plain, "text").x, 0)
    }
    function test_lineHeightsAreThoseOfLabels() {
        const bubble = createTemporaryObject(bubbles, test, { text: lines(5) })
        const text = findChild(bubble, "text")
        compare(text.implicitHeight, 5 * Theme.type.body.line)
        bubble.text = lines(2)
        compare(text.implicitHeight, 2 * Theme.type.body.line, "also of a text that is set anew")
    }
    function test_markupIsNoMarkupAndWhatIsVeryLongIsShownWhenAskedFor() {
        const bubble = createTemporaryObject(bubbles, test, { text: "<b>no</b><img src='https://example.com/x'>" })
        const text = findChild(bubble, "text")
        compare(text.getText(0, text.length), bubble.text)
        bubble.text = "word ".repeat(20000)
        verify(text.length < 5000)
        mouseClick(findChild(bubble, "expand"))
        compare(text.length, 100000)
    }
    function test_eachSentenceCanBeReached() {
        const bubble = createTemporaryObject(bubbles, test, { text: "One. Two.", sentences: ["One.", "Two."] })
        const text = findChild(bubble, "text")
        const names = Array.from(text.children).map(child => child.Accessible.name).filter(name => name !== "")
        compare(names, ["One.", "Two."])
    }

    Component { id: composers; ChatComposer { width: 300; canSend: text.trim() !== "" } }
    Component {
        id: attached

        ChatComposer {
            width: 300
            chips: Chip {
                property bool along: false

                objectName: "chip"
                visible: along
                text: "A dress"
            }
        }
    }
    function test_whatGoesAlongLeavesNoGapBehind() {
        const composer = createTemporaryObject(attached, test)
        const before = composer.height
        findChild(composer, "chip").along = true
        tryVerify(() => composer.height > before)
        findChild(composer, "chip").along = false
        tryCompare(composer, "height", before)
    }
    SignalSpy { id: sent; signalName: "sendAsked" }
    function test_enterSendsAndShiftEnterBeginsALine() {
        const composer = createTemporaryObject(composers, test)
        sent.target = composer
        sent.clear()
        composer.forceActiveFocus()
        verify(composer.input.activeFocus)
        keyClick(Qt.Key_Return)
        compare(sent.count, 0, "there is nothing to send")
        keyClick("a")
        const oneLine = composer.height
        keyClick(Qt.Key_Return, Qt.ShiftModifier)
        compare(sent.count, 0)
        keyClick("b")
        compare(composer.text, "a\nb")
        tryVerify(() => composer.height > oneLine)
        keyClick(Qt.Key_Return)
        compare(sent.count, 1)
        composer.setText("x\n".repeat(100))
        waitForRendering(composer)
        verify(composer.height < 250, "it grows only so far")
        keyClick(Qt.Key_Tab)
        verify(findChild(composer, "send").activeFocus, "the Tab key leads on")
    }

    Component { id: announcers; Announcer {} }
    function test_aReplyIsSaidSentenceBySentence() {
        const announcer = createTemporaryObject(announcers, test)
        announcer.say(["One.", "Two."])
        announcer.say(["Three."])
        compare(announcer.Accessible.name, "One.")
        tryCompare(announcer, "sentence", "Two.", 3000)
        announcer.stop()
        compare(announcer.Accessible.name, "")
        wait(0)
        compare(announcer.sentence, "", "it was told to stop")
    }
}
