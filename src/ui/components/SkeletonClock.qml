pragma Singleton
import QtQuick
import Loomstreet.Theme

// The one clock of all skeletons: a band of light crosses the window, and each skeleton shows the part of it that
// lies over itself. It runs only while one of them is seen.
QtObject {
    id: clock

    property int watchers: 0
    readonly property bool running: watchers > 0 && Theme.durationSkeletonSweep > 0

    readonly property real halfBand: 120
    // The middle of the band, in the window's own points; it enters and leaves out of sight.
    property real position: -halfBand
    property real reach: Theme.breakpointDefaultWindow.width

    readonly property NumberAnimation sweep: NumberAnimation {
        target: clock
        property: "position"
        running: clock.running
        from: -clock.halfBand
        to: clock.reach + clock.halfBand
        duration: Math.max(1, Theme.durationSkeletonSweep)
        loops: Animation.Infinite
    }
}
