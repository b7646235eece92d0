import QtQuick
import Loomstreet.Theme

// The shadow of the box it fills, drawn outside that box. Place it behind the box.
Item {
    id: elevation

    property ShadowStyle style: Theme.shadowPopover
    property int radius: Theme.radiusControl

    // So much of the box takes part in the corners of the image.
    readonly property int blur: style ? style.blur : 0
    readonly property int inner: Math.floor(Math.min(radius + blur, width / 2, height / 2))

    function shadow(style: ShadowStyle): string {
        const channel = value => Math.round(value * 255).toString(16).padStart(2, "0")
        const color = style.color
        return "image://shadow/" + [style.blur, radius, inner, channel(color.a) + channel(color.r) + channel(color.g)
                + channel(color.b)].join("/")
    }

    BorderImage {
        readonly property int corner: elevation.blur + elevation.inner

        visible: elevation.inner > 0
        x: (elevation.style ? elevation.style.x : 0) - elevation.blur
        y: (elevation.style ? elevation.style.y : 0) - elevation.blur
        width: elevation.width + 2 * elevation.blur
        height: elevation.height + 2 * elevation.blur
        border { left: corner; right: corner; top: corner; bottom: corner }
        source: elevation.style && elevation.inner > 0 ? elevation.shadow(elevation.style) : ""
    }
}
