import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// Shows where the keyboard is, and only to those who use it: a line around its parent with a gap between, following
// the parent's corners.
Rectangle {
    id: ring

    property Item target: parent
    property real controlRadius: Theme.radiusControl
    // Room for a line that its parent already has around it.
    property int clearance: 0

    // On a picture the gap is filled, so that the line is told from whatever is in the picture.
    property bool overPicture: false

    readonly property int distance: Theme.strokeFocus + Theme.strokeFocusGap + clearance

    anchors.fill: parent
    anchors.margins: -distance
    // The mode is asked first, so that it is watched from before the first key on.
    visible: InputMode.keyboard && target !== null && target.activeFocus
    radius: controlRadius + distance
    z: overPicture ? -1 : 0
    color: overPicture ? Theme.surface : "transparent"
    border.width: Theme.strokeFocus
    border.color: Theme.focus
}
