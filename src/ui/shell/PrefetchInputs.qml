import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Pages
import Loomstreet.Theme

// Leads into the fetching of pictures ahead whether there is to be any, and how large a piece opened from this window
// will show its own.
Item {
    id: inputs

    required property AppModel app
    required property WindowSession session
    // The whole of a page.
    required property real pageWidth

    readonly property bool narrow: session.contentWidth < Theme.breakpointNarrow
    readonly property int gap: narrow ? Theme.layoutPagePaddingNarrow : Theme.layoutPagePaddingBesidePane
    readonly property bool beside: app.settings.splitPreview && !session.isMiraDocked
        && session.contentWidth >= Theme.breakpointSplitPreviewFrom

    visible: false

    GalleryMeasure {
        id: measure

        width: inputs.beside ? inputs.session.selected.previewWidth - 2 * Theme.space3
                             : inputs.pageWidth - 2 * inputs.gap - (inputs.narrow ? 0 : Theme.layoutBuyBox + inputs.gap)
        narrow: inputs.narrow && !inputs.beside
    }
    Binding {
        target: PicturePrefetch
        property: "enabled"
        value: inputs.app.remoteConfig.prefetchesImages && !inputs.app.session.isMetered
    }
    // That of the window one works in counts.
    Binding {
        target: PicturePrefetch
        property: "pageWidth"
        value: PictureAddress.widthStep(Math.ceil(measure.pictureWidth * inputs.Screen.devicePixelRatio))
        when: inputs.Window.active
        restoreMode: Binding.RestoreNone
    }
}
