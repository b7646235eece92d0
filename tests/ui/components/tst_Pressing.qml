import QtQuick
import QtTest
import Loomstreet.Components
import Loomstreet.Testing
import Loomstreet.Theme

TestCase {
    id: test

    name: "Pressing"
    width: 400
    height: 300
    visible: true
    when: windowShown

    Component { id: pushButton; PushButton { text: "Add to Cart" } }
    Component { id: iconButton; IconButton { text: "Reload"; iconName: "arrow.clockwise" } }
    Component { id: linkButton; LinkButton { text: "See all" } }
    Component { id: chip; Chip { text: "Silk"; selected: true; removable: true } }
    Component { id: size; SizeButton { text: "M" } }
    Component { id: soldOutSize; SizeButton { text: "L"; soldOut: true } }
    Component { id: swatch; Swatch { label: "Sage"; color: "#8fa48b"; soldOut: true } }
    Component { id: save; SaveButton { saved: true } }
    Component { id: switchRow; SwitchRow { text: "Play a sound" } }
    Component { id: radioRow; RadioRow { text: "Express" } }
    Component { id: menuItem; MenuItem { text: "New Tab" } }
    SignalSpy { id: clicks; signalName: "clicked" }

    function test_everythingThatCanBePressed_data() {
        return [
            { tag: "PushButton", component: pushButton, name: "Add to Cart", role: 43 },
            { tag: "IconButton", component: iconButton, name: "Reload", role: 43 },
            { tag: "LinkButton", component: linkButton, name: "See all", role: 43 },
            { tag: "Chip", component: chip, name: "Remove Silk", role: 43 },
            { tag: "SizeButton", component: size, name: "M", role: 45 },
            { tag: "SizeButton, sold out", component: soldOutSize, name: "L, sold out", role: 45 },
            { tag: "Swatch, sold out", component: swatch, name: "Sage, sold out", role: 45 },
            { tag: "SaveButton", component: save, name: "Remove from wishlist", role: 43 },
            { tag: "SwitchRow", component: switchRow, name: "Play a sound", role: 44 },
            { tag: "RadioRow", component: radioRow, name: "Express", role: 45 },
            { tag: "MenuItem", component: menuItem, name: "New Tab", role: 12, keys: [Qt.Key_Space] }
        ]
    }
    function test_everythingThatCanBePressed(row) {
        const item = createTemporaryObject(row.component, test)
        compare(AccessibleProbe.name(item), row.name)
        compare(AccessibleProbe.role(item), row.role)
        verify(AccessibleProbe.focusable(item) || row.tag === "MenuItem", "can be reached")

        clicks.target = item
        clicks.clear()
        mouseClick(item)
        compare(clicks.count, 1, "pointer")
        item.forceActiveFocus(Qt.TabFocusReason)
        for (const key of row.keys ?? [Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter]) {
            clicks.clear()
            keyClick(key)
            compare(clicks.count, 1, "key " + key)
        }
        clicks.clear()
        verify(AccessibleProbe.press(item))
        compare(clicks.count, 1, "assistive tool")

        item.enabled = false
        clicks.clear()
        mouseClick(item)
        AccessibleProbe.press(item)
        compare(clicks.count, 0, "disabled")
        fuzzyCompare(item.opacity, 0.42, 0.001)
    }

    function test_whatIsNotDisabledIsLargeEnoughToHit() {
        for (const component of [pushButton, iconButton, linkButton, chip, size, save, switchRow, radioRow, menuItem]) {
            const item = createTemporaryObject(component, test)
            verify(item.width >= 32 && item.height >= 32, item + " is " + item.width + " by " + item.height)
        }
    }

    function test_aBusyButtonKeepsItsWidthAndItsFocusAndTakesNoPress() {
        const button = createTemporaryObject(pushButton, test)
        const width = button.width
        button.forceActiveFocus(Qt.TabFocusReason)
        button.busy = true
        compare(button.width, width)
        verify(button.activeFocus)
        verify(findChild(button, "spinner").visible)

        clicks.target = button
        clicks.clear()
        mouseClick(button)
        keyClick(Qt.Key_Space)
        keyClick(Qt.Key_Return)
        AccessibleProbe.press(button)
        compare(clicks.count, 0)
        button.busy = false
        keyClick(Qt.Key_Space)
        compare(clicks.count, 1)
    }
}
