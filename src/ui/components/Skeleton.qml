import QtQuick
import Loomstreet.Theme

// The place of something that is still coming, in its final shape.
Rectangle {
    id: skeleton

    property bool watching: false

    // Where the band is, in this skeleton's own points. Out of its reach nothing changes and nothing is drawn anew.
    readonly property real middle: watching && SkeletonClock.running
                                   ? SkeletonClock.position - mapToItem(null, 0, 0).x : -1000
    readonly property bool lit: middle > -SkeletonClock.halfBand && middle < width + SkeletonClock.halfBand

    readonly property real crest: lit ? Math.max(0, Math.min(1, middle / width)) : 0.5

    function light(x: real): color {
        const share = Math.max(0, 1 - Math.abs(x - middle) / SkeletonClock.halfBand)
        return Qt.tint(Theme.skeleton, Qt.alpha(Theme.skeletonSheen, share))
    }
    function watch(seen: bool): void {
        if (seen === watching)
            return
        watching = seen
        SkeletonClock.watchers += seen ? 1 : -1
    }

    implicitHeight: 16
    radius: Theme.radiusSmall
    color: Theme.skeleton
    gradient: lit ? band : null

    onVisibleChanged: watch(visible)
    onWidthChanged: SkeletonClock.reach = Math.max(SkeletonClock.reach, mapToItem(null, width, 0).x)
    Component.onCompleted: watch(visible)
    Component.onDestruction: watch(false)

    Gradient {
        id: band

        orientation: Gradient.Horizontal
        GradientStop { position: 0; color: skeleton.lit ? skeleton.light(0) : Theme.skeleton }
        GradientStop {
            position: skeleton.crest
            color: skeleton.lit ? skeleton.light(skeleton.crest * skeleton.width) : Theme.skeleton
        }
        GradientStop { position: 1; color: skeleton.lit ? skeleton.light(skeleton.width) : Theme.skeleton }
    }
}
