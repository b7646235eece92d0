import QtQml
import Loomstreet.Theme

// How wide the pictures of a gallery are.
QtObject {
    property real width // of the whole gallery
    property bool several: true
    property bool narrow: false

    readonly property int thumbWidth: 64
    readonly property bool hasThumbs: several && !narrow
    readonly property int perView: fit(room(width))
    // In one step: a picture is loaded at every width that it has, even in between.
    readonly property real pictureWidth: (room(width) - (fit(room(width)) - 1) * Theme.space1_5) / fit(room(width))

    // Beside the small pictures.
    function room(width: real): real { return several && !narrow ? width - thumbWidth - Theme.space1_5 : width }
    function fit(room: real): int { return several && !narrow && room >= 520 ? 2 : 1 }
}
