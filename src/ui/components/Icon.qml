import QtQuick
import Loomstreet.Theme

// One of the application's icons. It says nothing to assistive tools: what it stands in does.
Image {
    id: icon

    property string name
    property color color: Theme.ink
    property int size: 20
    // What points along the reading direction turns with it; clocks, check-marks and hearts do not.
    property bool mirrors: /^(chevron\.(left|right)|open\.tab|sidebar|return|truck|chart\.down|speaker)$/.test(name)

    width: size
    height: size
    sourceSize { width: size; height: size }
    source: name === "" ? "" : "image://icon/" + name + "/" + color.toString().slice(-6)
    mirror: mirrors && LayoutMirroring.enabled
}
