import QtQuick
import QtTest
import Loomstreet.Components
import Loomstreet.Testing
import Loomstreet.Theme

TestCase {
    id: test

    name: "Text"
    width: 800
    height: 400
    visible: true
    when: windowShown

    function cleanup() {
        Theme.textScale = 1
        Theme.language = "en"
        Theme.appearance = "system"
        Theme.reducedMotion = false
    }

    Component { id: label; TextLabel {} }

    function test_everyScriptStandsOnTheSameLine_data() {
        const rows = []
        for (const style of ["hero", "section", "body", "label", "caption"])
            for (const language of ["en", "ar", "hi", "th", "ja"])
                for (const scale of [1, 1.5])
                    rows.push({ tag: [style, language, scale].join(), style: style, language: language, scale: scale })
        return rows
    }
    function test_everyScriptStandsOnTheSameLine(row) {
        Theme.language = row.language
        Theme.textScale = row.scale
        const type = Theme.type[row.style]
        const baselines = []
        for (const text of ["Sabine bias", "فستان سابين", "שמלת משי", "पोशाक dress", "ชุดเดรส", "東京 dress", "$248.00"]) {
            const item = createTemporaryObject(label, test, { type: type, text: text })
            compare(item.implicitHeight, type.line, text)
            baselines.push(item.baselineOffset)
        }
        for (const baseline of baselines)
            verify(Math.abs(baseline - baselines[0]) <= 1, baselines)
        fuzzyCompare(baselines[0], type.baseline, 1)
    }

    function test_joinedLettersAreNeverSetApartAndForeignTextIsNeverMarkup() {
        const item = createTemporaryObject(label, test, { type: Theme.type.overline, text: "TALLIS" })
        verify(item.font.letterSpacing > 0)
        for (const text of ["فستان", "שמלה", "पोशाक", "ชุดเดรส", "東京"]) {
            item.text = text
            compare(item.font.letterSpacing, 0, text)
        }
        const plain = createTemporaryObject(label, test, { text: "plain" })
        const marked = createTemporaryObject(label, test, { text: "<b>plain</b><img src='file:///x'>" })
        verify(marked.implicitWidth > 3 * plain.implicitWidth)
        compare(marked.textFormat, Text.PlainText)
    }

    Component { id: overline; Overline {} }
    function test_theWindowsWordsHaveTheCapitalsOfItsLanguage_data() {
        return [
            { tag: "en", words: "Settings", shown: "Settings" }, // the font's own capitals do
            { tag: "tr", words: "Bildirimler", shown: "BİLDİRİMLER" },
            { tag: "el", words: "Ρυθμίσεις", shown: "ΡΥΘΜΙΣΕΙΣ" },
            { tag: "de", words: "Größe", shown: "GRÖSSE" },
            { tag: "th", words: "ตั้งค่า", shown: "ตั้งค่า" }
        ]
    }
    function test_theWindowsWordsHaveTheCapitalsOfItsLanguage(row) {
        const item = createTemporaryObject(overline, test, { words: row.words })
        Theme.language = row.tag
        compare(item.text, row.shown)
        compare(item.Accessible.name, row.words)
        compare(item.font.capitalization, row.tag === "th" ? Font.MixedCase : Font.AllUppercase)
    }

    Component { id: longText; ScrollingText { width: 200; maximumHeight: 100; type: Theme.type.small } }
    function test_aLongTextIsReadToItsEndByKeysAndAShortOneIsNoStop() {
        const item = createTemporaryObject(longText, test, { text: "One line." })
        verify(!item.activeFocusOnTab)
        verify(item.implicitHeight < 100)
        item.text = "<b>Line</b>\n".repeat(50)
        compare(item.implicitHeight, 100)
        verify(item.activeFocusOnTab)
        item.forceActiveFocus(Qt.TabFocusReason)
        const words = findChild(item, "words")
        const top = () => words.mapToItem(item, 0, 0).y
        keyClick(Qt.Key_Up)
        compare(top(), 0)
        keyClick(Qt.Key_Down)
        compare(top(), -item.type.line)
        keyClick(Qt.Key_End)
        compare(top(), 100 - words.height)
        item.text = "<b>Other</b>\n".repeat(50)
        compare(top(), 0)
    }

    Component { id: skeleton; Skeleton { width: 100 } }
    function test_theSkeletonsClockRunsOnlyWhileOneIsSeenAndMotionIsWanted() {
        compare(SkeletonClock.watchers, 0)
        const first = skeleton.createObject(test)
        const second = skeleton.createObject(test)
        verify(SkeletonClock.running && SkeletonClock.watchers === 2)
        Theme.reducedMotion = true
        verify(!SkeletonClock.running && !first.lit)
        Theme.reducedMotion = false
        first.visible = false
        compare(SkeletonClock.watchers, 1)
        first.destroy()
        second.destroy()
        tryCompare(SkeletonClock, "watchers", 0)
        verify(!SkeletonClock.running)
    }
}
