import QtQuick
import Loomstreet.Theme

// The ground of menus, tooltips and other things that float: surface, hairline and shadow.
Item {
    id: floating

    property ShadowStyle shadow: Theme.shadowPopover
    property int radius: Theme.radiusControl

    Elevation {
        anchors.fill: parent
        style: floating.shadow
        radius: floating.radius
    }
    Rectangle {
        anchors.fill: parent
        radius: floating.radius
        color: Theme.surface
        border.width: Theme.strokeHairline
        border.color: Theme.hairline
    }
}
