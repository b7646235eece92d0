pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Model
import Loomstreet.Theme

// The voice that is heard: it begins in the middle and runs to both sides, thin and green for the shopper's, broad and
// dark for hers. While she thinks it is three dots, and flat where nobody is heard. With reduced motion it stands.
Item {
    id: wave

    required property MiraVoiceSession call
    property string kind: "listening" // as of a CallState
    property int most: 40 // how high it gets
    property int pitch: 7
    readonly property int half: Math.max(0, Math.floor((width - pitch) / 2 / pitch))

    readonly property int dot: most < 16 ? 4 : most < 40 ? 6 : 8
    readonly property bool heard: kind === "listening" || kind === "speaking"
    readonly property bool speaking: kind === "speaking"
    // Of the moments before, the latest first.
    property var levels: []
    // A voice is never even.
    readonly property var grain: [0.24, 1, 0.44, 0.92, 0.5, 0.86, 0.66, 0.6, 0.78, 0.5, 0.7, 0.46]

    // Something of it is still to be seen.
    property bool flowing: false

    function follow(): void {
        const level = speaking ? call.playedLevel : call.microphoneLevel
        levels = [level, ...levels.slice(0, half)]
        flowing = levels.some(level => level > 0)
    }
    function extentAt(distance: int): real {
        if (!heard)
            return 0
        const level = Theme.reducedMotion ? 0.8 : levels[distance] ?? 0
        return level * grain[distance % grain.length] * (1 - 0.7 * distance / Math.max(1, half))
    }

    implicitWidth: 41 * pitch
    implicitHeight: most
    onKindChanged: levels = []

    Accessible.ignored: true

    Connections {
        target: wave.call
        function onLevelsChanged(): void { wave.flowing = true }
    }
    Timer {
        interval: 40
        repeat: true
        running: wave.flowing && wave.heard && wave.visible && !Theme.reducedMotion
        onTriggered: wave.follow()
    }
    Repeater {
        model: wave.kind === "thinking" || wave.kind === "ended" ? 0 : 2 * wave.half + 1

        Rectangle {
            required property int index
            readonly property int distance: Math.abs(index - wave.half)

            x: (wave.width - width) / 2 + (index - wave.half) * wave.pitch
            y: (wave.height - height) / 2
            width: (wave.speaking ? 4 : 3) - (wave.pitch < 7 ? 1 : 0)
            height: Math.max(width, wave.most * wave.extentAt(distance))
            radius: width / 2
            color: wave.speaking ? Theme.ink : wave.heard ? Theme.accent : Theme.border
            opacity: 1 - 0.6 * distance / Math.max(1, wave.half)
        }
    }
    Row {
        anchors.centerIn: parent
        visible: wave.kind === "thinking"
        spacing: wave.dot

        Repeater {
            model: wave.kind === "thinking" ? 3 : 0

            Rectangle {
                id: dot

                required property int index

                width: wave.dot
                height: width
                radius: width / 2
                color: Theme.accent

                SequentialAnimation on opacity {
                    running: wave.visible && !Theme.reducedMotion
                    loops: Animation.Infinite

                    PauseAnimation { duration: 240 * dot.index }
                    NumberAnimation { from: 0.25; to: 1; duration: 480; easing.type: Easing.InOutSine }
                    NumberAnimation { from: 1; to: 0.25; duration: 480; easing.type: Easing.InOutSine }
                    PauseAnimation { duration: 240 * (2 - dot.index) }
                }
            }
        }
    }
    Rectangle {
        anchors.centerIn: parent
        visible: wave.kind === "ended"
        width: Math.min(parent.width, 64)
        height: Theme.strokeHairline
        color: Theme.border
    }
}
