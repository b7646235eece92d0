import QtQuick
import QtTest
import Loomstreet.Components
import Loomstreet.Testing
import Loomstreet.Theme

TestCase {
    id: test

    name: "Focus"
    width: 500
    height: 400
    visible: true
    when: windowShown

    Column {
        PushButton { id: first; text: "First" }
        PushButton { id: second; text: "Second" }
        FieldInput { id: field; label: "Email" }
    }

    function ringOf(item) {
        return item.background.children[0]
    }

    function test_theRingShowsForTheKeyboardAlone() {
        mouseClick(first)
        verify(first.activeFocus)
        verify(!ringOf(first).visible, "not after a press of the pointer")
        keyClick(Qt.Key_Tab)
        verify(second.activeFocus && ringOf(second).visible)
        verify(!ringOf(first).visible)
        mouseClick(first)
        verify(!ringOf(first).visible, "nor when the pointer is used again")
        keyClick(Qt.Key_Shift)
        verify(!ringOf(first).visible, "a modifier alone is no key")
        keyClick(Qt.Key_Right)
        verify(ringOf(first).visible, "what has the focus is shown as soon as a key is used")
    }

    Component { id: icon; IconButton { x: 200; y: 200; iconName: "bag"; text: "Bag"; shortcut: "Ctrl B" } }
    function test_anIconIsExplainedUnderThePointerAndUnderTheKeyboard() {
        let button = createTemporaryObject(icon, test)
        mouseMove(button, 10, 10)
        compare(ToolTips.shown, null, "not at once")
        tryVerify(() => ToolTips.shown !== null && ToolTips.shown.opened)
        compare(ToolTips.shown.parent, button)
        compare([ToolTips.shown.text, ToolTips.shown.shortcut], ["Bag", "Ctrl B"])
        mouseMove(test, 5, 300)
        compare(ToolTips.shown, null)

        keyClick(Qt.Key_Right)
        button.forceActiveFocus(Qt.TabFocusReason)
        tryVerify(() => ToolTips.shown !== null)
        first.forceActiveFocus(Qt.TabFocusReason)
        compare(ToolTips.shown, null)

        button.forceActiveFocus(Qt.TabFocusReason)
        tryVerify(() => ToolTips.shown !== null)
        button.destroy()
        tryCompare(ToolTips, "shown", null, 1000, "it goes with what it explains")
    }

    Component {
        id: panels

        Item {
            width: 1000
            height: 400

            PushButton { objectName: "opener"; text: "Open" }
            Panel {
                objectName: "panel"
                title: "Shopping bag"
                onCloseAsked: open = false

                PushButton { objectName: "inside"; text: "Inside" }
                footer: PushButton { objectName: "last"; text: "Checkout" }
            }
        }
    }

    function test_aPanelTakesTheFocusKeepsItAndGivesItBack() {
        const scene = createTemporaryObject(panels, test)
        const opener = findChild(scene, "opener")
        const panel = findChild(scene, "panel")
        opener.forceActiveFocus(Qt.TabFocusReason)
        panel.open = true
        verify(findChild(panel, "close").activeFocus)

        const seen = []
        for (let i = 0; i < 6; ++i) {
            keyClick(Qt.Key_Tab)
            seen.push(test.Window.activeFocusItem.objectName)
        }
        verify(seen.indexOf("inside") >= 0 && seen.indexOf("last") >= 0 && seen.indexOf("close") >= 0, seen)
        for (const name of seen)
            verify(["inside", "last", "close"].indexOf(name) >= 0, "the Tab key left the panel for " + name)
        keyClick(Qt.Key_Backtab, Qt.ShiftModifier)
        verify(["inside", "last", "close"].indexOf(test.Window.activeFocusItem.objectName) >= 0)

        keyClick(Qt.Key_Escape)
        verify(!panel.open)
        verify(opener.activeFocus)
        tryCompare(panel, "visible", false)
    }

    function test_aPanelLeavesTheFocusWithWhoeverTookItMeanwhile() {
        const scene = createTemporaryObject(panels, test)
        const panel = findChild(scene, "panel")
        first.forceActiveFocus()
        panel.open = true
        second.forceActiveFocus()
        panel.open = false
        verify(second.activeFocus)
    }
}
