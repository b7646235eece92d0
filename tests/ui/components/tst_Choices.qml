import QtQuick
import QtTest
import Loomstreet.Components
import Loomstreet.Testing
import Loomstreet.Theme

TestCase {
    id: test

    name: "Choices"
    width: 500
    height: 400
    visible: true
    when: windowShown

    Component { id: segments; SegmentedControl { segments: ["cm", "in", "hands"]; name: "Unit" } }
    SignalSpy { id: activations; signalName: "activated" }

    function test_arrowsMoveAmongSegmentsInTheReadingDirection_data() {
        return [
            { tag: "left to right", mirrored: false, forward: Qt.Key_Right, back: Qt.Key_Left },
            { tag: "right to left", mirrored: true, forward: Qt.Key_Left, back: Qt.Key_Right }
        ]
    }
    function test_arrowsMoveAmongSegmentsInTheReadingDirection(row) {
        const control = createTemporaryObject(segments, test)
        control.LayoutMirroring.enabled = row.mirrored
        control.LayoutMirroring.childrenInherit = true
        activations.target = control
        activations.clear()
        findChild(control, "segment0").forceActiveFocus(Qt.TabFocusReason)
        keyClick(row.back)
        compare(control.currentIndex, 0, "there is nothing before the first")
        keyClick(row.forward)
        compare(control.currentIndex, 1)
        verify(findChild(control, "segment1").activeFocus)
        keyClick(row.forward)
        keyClick(row.forward)
        compare(control.currentIndex, 2)
        compare(activations.count, 2)
        const chosen = findChild(control, "chosen")
        compare(chosen.x, row.mirrored ? 0 : 2 * control.segmentWidth)
        verify(AccessibleProbe.checked(findChild(control, "segment2")))

        AccessibleProbe.press(findChild(control, "segment0"))
        compare(control.currentIndex, 0)
    }
    function test_segmentsAreOneStopOfTheTabKey() {
        const control = createTemporaryObject(segments, test, { currentIndex: 1 })
        let stops = 0
        for (let i = 0; i < 3; ++i)
            stops += findChild(control, "segment" + i).activeFocusOnTab ? 1 : 0
        compare(stops, 1)
        verify(findChild(control, "segment1").activeFocusOnTab)
    }

    Component {
        id: stepper

        Stepper {
            property int asked: 0

            value: 2
            from: 1
            to: 3
            name: "Quantity"
            onStepped: value => { asked += 1; this.value = value }
        }
    }
    function test_aStepperStaysWithinItsLimitsAndKeepsTheKeyboard() {
        const control = createTemporaryObject(stepper, test)
        const less = findChild(control, "less")
        const more = findChild(control, "more")
        less.forceActiveFocus(Qt.TabFocusReason)
        keyClick(Qt.Key_Space)
        compare(control.value, 1)
        verify(!less.enabled)
        verify(more.activeFocus, "the keyboard is not lost at the limit")
        keyClick(Qt.Key_Minus)
        compare(control.value, 1)
        keyClick(Qt.Key_Up)
        keyClick(Qt.Key_Plus)
        keyClick(Qt.Key_Up)
        compare(control.value, 3)
        compare(control.asked, 3)
        verify(less.activeFocus)
        compare(findChild(control, "count").text, "3")
        compare(AccessibleProbe.description(control), "3")
        control.value = 2
        AccessibleProbe.increase(control)
        compare(control.value, 3)
    }

    Component {
        id: disclosure

        Disclosure {
            width: 300
            title: "Composition"

            TextLabel { objectName: "inner"; text: "92 % silk" }
        }
    }
    function test_aDisclosureOpensAndClosesByKeysAndSaysWhichItIs() {
        const item = createTemporaryObject(disclosure, test)
        const header = findChild(item, "header")
        const closed = item.implicitHeight
        verify(!findChild(item, "inner").visible)
        compare(AccessibleProbe.description(header), "Collapsed")
        header.forceActiveFocus(Qt.TabFocusReason)
        keyClick(Qt.Key_Return)
        verify(item.expanded && findChild(item, "inner").visible)
        verify(item.implicitHeight > closed)
        compare(AccessibleProbe.description(header), "Expanded")
        AccessibleProbe.press(header)
        compare(item.implicitHeight, closed)
    }

    Component {
        id: menus

        Item {
            property var chosen: []

            width: 400
            height: 300

            PushButton { objectName: "opener"; text: "More" }
            Menu {
                objectName: "menu"

                MenuItem { text: "New Tab"; shortcut: "Ctrl T"; onTriggered: chosen.push("new") }
                MenuItem { text: "Close Others"; enabled: false; onTriggered: chosen.push("others") }
                MenuSeparator {}
                MenuItem { text: "Sidebar"; checkable: true; onTriggered: chosen.push("sidebar") }
                Menu {
                    objectName: "subMenu"
                    title: "Zoom"

                    MenuItem { text: "100 %"; onTriggered: chosen.push("zoom") }
                }
            }
        }
    }
    function test_aMenuIsWorkedByKeys() {
        const scene = createTemporaryObject(menus, test)
        const menu = findChild(scene, "menu")
        const opener = findChild(scene, "opener")
        opener.forceActiveFocus()
        menu.popup(opener)
        tryCompare(menu, "opened", true)
        verify(menu.height >= 4 * 32)
        for (let i = 0; i < menu.count; ++i)
            compare(menu.itemAt(i).width, menu.availableWidth)

        keyClick(Qt.Key_Down)
        compare(menu.currentIndex, 0)
        keyClick(Qt.Key_Return)
        compare(scene.chosen, ["new"], "once")
        tryCompare(menu, "visible", false)
        verify(opener.activeFocus, "the focus goes back to where it came from")

        menu.popup(opener)
        tryCompare(menu, "opened", true)
        for (let i = 0; i < 3; ++i) // past what is disabled and what separates
            keyClick(Qt.Key_Down)
        compare(menu.currentIndex, 4)
        keyClick(Qt.Key_Right)
        tryCompare(findChild(scene, "subMenu"), "opened", true)
        keyClick(Qt.Key_Space)
        compare(scene.chosen, ["new", "zoom"])

        menu.popup(opener)
        tryCompare(menu, "opened", true)
        keyClick(Qt.Key_Escape)
        tryCompare(menu, "opened", false)
        compare(scene.chosen.length, 2)
    }
    function test_anAssistiveToolChoosesFromAMenuAndClosesIt() {
        const scene = createTemporaryObject(menus, test)
        const menu = findChild(scene, "menu")
        menu.popup(findChild(scene, "opener"))
        tryCompare(menu, "opened", true)
        AccessibleProbe.press(menu.itemAt(1))
        compare(scene.chosen, [])
        AccessibleProbe.press(menu.itemAt(3))
        compare(scene.chosen, ["sidebar"])
        verify(menu.itemAt(3).checked)
        tryCompare(menu, "opened", false)
    }
}
