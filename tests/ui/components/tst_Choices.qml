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
}
