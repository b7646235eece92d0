pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Theme

// A few ways to see the same thing, one at a time, as centimetres and inches. One stop for the Tab key; the arrows
// move within.
Item {
    id: control

    property var segments: [] // their texts
    property int currentIndex: 0
    property string name // for assistive tools: what is chosen here

    readonly property int segmentWidth: measure(metrics.font)

    // Takes the font that it measures with, so that another one has it measured again.
    function measure(font: font): int {
        let widest = 0
        for (const segment of segments)
            widest = Math.max(widest, metrics.advanceWidth(segment))
        return Math.max(Theme.targetControl, Math.ceil(widest) + 2 * Theme.space1_5)
    }

    signal activated(int index)

    function move(step: int): void {
        const next = currentIndex + step
        if (next >= 0 && next < segments.length)
            choose(next)
    }
    function choose(index: int): void {
        repeater.itemAt(index).forceActiveFocus(Qt.TabFocusReason)
        if (index === currentIndex)
            return
        currentIndex = index
        activated(index)
    }

    component Segment: Choice {
        id: segment

        required property int index
        required property string modelData

        text: modelData
        background: null
        contentItem: TextLabel {
            text: segment.text
            type: Theme.type.label
            color: segment.selected ? Theme.primaryInk : Theme.ink
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }
        focusPolicy: selected ? Qt.StrongFocus : Qt.ClickFocus
    }

    FontMetrics {
        id: metrics

        font.family: Theme.type.label.family
        font.pixelSize: Theme.type.label.size
        font.weight: Theme.type.label.weight
    }

    implicitWidth: segmentWidth * segments.length
    implicitHeight: Math.max(Theme.targetMinimum, Theme.type.label.line + Theme.space1)
    opacity: enabled ? 1 : Theme.alphaDisabled

    Accessible.role: Accessible.Grouping
    Accessible.name: name

    Keys.onLeftPressed: move(LayoutMirroring.enabled ? 1 : -1)
    Keys.onRightPressed: move(LayoutMirroring.enabled ? -1 : 1)
    Keys.onUpPressed: move(-1)
    Keys.onDownPressed: move(1)

    Rectangle {
        anchors.fill: parent
        radius: Theme.radiusControl
        color: hover.hovered ? Theme.hover : "transparent"
        border.width: Theme.strokeControl
        border.color: Theme.border
    }
    // The whole shape filled, of which the chosen part shows.
    Item {
        objectName: "chosen"
        x: (control.LayoutMirroring.enabled ? control.segments.length - 1 - control.currentIndex
                                            : control.currentIndex) * control.segmentWidth
        width: control.segmentWidth
        height: parent.height
        clip: true

        Rectangle {
            x: -parent.x
            width: control.width
            height: parent.height
            radius: Theme.radiusControl
            color: Theme.primary
        }
    }
    Row {
        Repeater {
            id: repeater

            model: control.segments

            Segment {
                objectName: "segment" + index
                width: control.segmentWidth
                height: control.height
                selected: index === control.currentIndex
                onClicked: control.choose(index)

                FocusRing { target: parent }
            }
        }
    }
    HoverHandler { id: hover }
}
