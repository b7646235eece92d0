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
        Theme.arabicScript = false
        Theme.appearance = "system"
        Theme.reducedMotion = false
    }

    Component { id: label; TextLabel {} }

    function test_everyScriptStandsOnTheSameLine_data() {
        const rows = []
        for (const style of ["hero", "section", "body", "label", "caption"])
            for (const arabic of [false, true])
                for (const scale of [1, 1.5])
                    rows.push({ tag: [style, arabic, scale].join(), style: style, arabic: arabic, scale: scale })
        return rows
    }
    function test_everyScriptStandsOnTheSameLine(row) {
        Theme.arabicScript = row.arabic
        Theme.textScale = row.scale
        const type = Theme.type[row.style]
        const baselines = []
        for (const text of ["Sabine bias", "فستان سابين", "東京 dress", "$248.00"]) {
            const item = createTemporaryObject(label, test, { type: type, text: text })
            compare(item.implicitHeight, type.line, text)
            baselines.push(item.baselineOffset)
        }
        for (const baseline of baselines)
            verify(Math.abs(baseline - baselines[0]) <= 1, baselines)
    }

    function test_joinedLettersAreNeverSetApartAndForeignTextIsNeverMarkup() {
        const item = createTemporaryObject(label, test, { type: Theme.type.overline, text: "TALLIS" })
        verify(item.font.letterSpacing > 0)
        item.text = "فستان"
        compare(item.font.letterSpacing, 0)
        const plain = createTemporaryObject(label, test, { text: "plain" })
        const marked = createTemporaryObject(label, test, { text: "<b>plain</b><img src='file:///x'>" })
        verify(marked.implicitWidth > 3 * plain.implicitWidth)
        compare(marked.textFormat, Text.PlainText)
    }

    Component {
        id: table

        DataTable {
            width: 600
            headings: ["Size", "Bust", "Waist"]
            rows: [["XS", "80 – 84", "62 – 66"], ["M", "88 – 92", "70 – 74"], ["XL", "100 – 106", "82 – 86"]]
            markedRow: 1
        }
    }
    // Where the letters of a cell begin and end.
    function extent(cell, root) {
        const left = cell.mapToItem(root, 0, 0).x
        const spare = cell.width - cell.leftPadding - cell.rightPadding - cell.contentWidth
        const start = cell.effectiveHorizontalAlignment === Text.AlignRight ? left + cell.leftPadding + spare
                                                                             : left + cell.leftPadding
        return [start, start + cell.contentWidth]
    }
    function test_figuresOfATableEndBelowEachOtherInBothDirections_data() {
        return [{ tag: "left to right", mirrored: false }, { tag: "right to left", mirrored: true }]
    }
    function test_figuresOfATableEndBelowEachOtherInBothDirections(row) {
        const item = createTemporaryObject(table, test)
        item.LayoutMirroring.enabled = row.mirrored
        item.LayoutMirroring.childrenInherit = true
        const lines = ["headings"].concat([0, 1, 2].map(index => "row" + index)).map(name => findChild(item, name))
        for (let column = 0; column < 3; ++column) {
            const edge = (column === 0) !== row.mirrored ? 0 : 1 // names at the start, figures at the end
            const edges = lines.map(line => Math.round(extent(findChild(line, "cell" + column), item)[edge]))
            for (const found of edges)
                verify(Math.abs(found - edges[0]) <= 1, "column " + column + ": " + edges)
        }
        const first = extent(findChild(lines[1], "cell0"), item)[0]
        verify(row.mirrored ? first > 300 : first < 300, "the first column is where reading begins")
        compare(AccessibleProbe.name(lines[2]), "M, Bust 88 – 92, Waist 70 – 74")
    }
    function test_aTableTooWideForItsPlaceScrollsAndCutsNothing() {
        const item = createTemporaryObject(table, test, { width: 150 })
        const scroll = findChild(item, "scroll")
        verify(scroll.contentWidth > 150 && scroll.interactive)
        for (let column = 0; column < 3; ++column)
            verify(!findChild(findChild(item, "row2"), "cell" + column).truncated)
        const before = item.naturalWidth
        Theme.textScale = 2
        verify(item.naturalWidth > 1.5 * before, "columns grow with the text")
    }
    function test_aLargeTableFillsBetweenFramesAndMovesNothing() {
        const figures = unit => Array.from({ length: 50 }, (_, row) => Array.from({ length: 8 }, (_, column) => row + column + unit))
        const item = createTemporaryObject(table, test, { headings: figures("")[0], rows: figures(" cm") })
        const height = item.implicitHeight
        verify(findChild(item, "row49") === null, "not all at once")
        const cellOf = (row, column) => findChild(findChild(item, "row" + row), "cell" + column)
        tryVerify(() => cellOf(49, 7) !== null && cellOf(3, 2) !== null, 20000)
        compare(item.implicitHeight, height)
        const cell = cellOf(3, 2)
        item.rows = figures(" in")
        compare(cell.text, "5 in", "the same cell in another unit")
    }

    Component {
        id: search
        SearchField { width: 300; shortcut: "Ctrl K"; IconButton { text: "Camera"; iconName: "camera" } }
    }
    function test_aFieldsTextLiesBesideItsIconsInBothDirections() {
        const field = createTemporaryObject(search, test)
        const box = field.input
        verify(box.leftPadding === 40 && box.rightPadding > 80)
        field.LayoutMirroring.enabled = true
        field.LayoutMirroring.childrenInherit = true
        verify(box.rightPadding === 40 && box.leftPadding > 80)
    }

    Component { id: entry; FieldInput { width: 300 } }
    function test_aFieldIsAsTallInEveryScriptAndGrowsWithTheText() {
        const field = createTemporaryObject(entry, test)
        const height = field.implicitHeight
        for (const text of ["Ag", "فستان", "東京"]) {
            field.text = text
            compare(field.implicitHeight, height, text)
        }
        Theme.textScale = 2
        tryVerify(() => field.implicitHeight > height)
    }

    Component { id: empty; EmptyState { title: "Your cart is empty" } }
    function test_titlesAreHeadingsForAssistiveToolsAndLabelsAreTexts() {
        const item = createTemporaryObject(empty, test)
        compare(AccessibleProbe.role(findChild(item, "title")), 0x414)
        const plain = createTemporaryObject(label, test, { text: "128 pieces" })
        compare(AccessibleProbe.role(plain), 0x29)
        compare(AccessibleProbe.name(plain), "128 pieces")
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
