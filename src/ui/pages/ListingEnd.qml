pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model

// What stands below the pieces of a list, or in their place: the end of it, that there are none, or what went wrong.
FocusScope {
    id: end

    property ProductListing listing
    property ListingWords words
    property bool shown: false
    property bool blank: false

    readonly property int phase: listing ? listing.phase : ProductListing.Idle
    readonly property bool filtered: (listing?.filters.selectedCount ?? 0) > 0

    // A control that goes had the focus.
    signal focusFreed()

    function clear(): void {
        focusFreed()
        listing.filters.clear()
    }

    implicitHeight: phase === ProductListing.Loaded ? footer.implicitHeight : 360

    ListingFooter {
        id: footer

        width: parent.width
        visible: end.phase === ProductListing.Loaded
        listing: end.listing
        onFocusFreed: end.focusFreed()
    }
    ErrorState {
        objectName: "error"
        anchors.centerIn: parent
        visible: end.phase === ProductListing.Failed
        width: Math.min(parent.width, 480)
        sentence: end.listing?.errorText ?? ""
        takesFocus: end.shown
        onRetry: {
            end.focusFreed()
            end.listing.reload()
        }

        PushButton {
            objectName: "clearFailed"
            visible: end.filtered
            text: qsTranslate("Loomstreet", "Clear All Filters")
            onClicked: end.clear()
        }
    }
    EmptyState {
        objectName: end.phase === ProductListing.Missing ? "missing" : "empty"
        anchors.centerIn: parent
        visible: end.blank || end.phase === ProductListing.Missing || end.phase === ProductListing.Empty
        width: Math.min(parent.width, 480)
        iconName: end.phase === ProductListing.Missing ? "info" : end.filtered ? "sliders" : end.words.emptyIcon
        title: end.phase === ProductListing.Missing ? end.words.missingTitle
                                                    : end.filtered ? end.words.filteredTitle : end.words.emptyTitle
        sentence: end.phase === ProductListing.Missing ? end.words.missingSentence
                                                       : end.filtered ? end.words.filteredSentence : end.words.emptySentence

        PushButton {
            objectName: "clearAll"
            visible: end.filtered && end.phase === ProductListing.Empty
            text: qsTranslate("Loomstreet", "Clear All Filters")
            onClicked: end.clear()
        }
        Repeater {
            model: end.filtered && end.phase === ProductListing.Empty ? [] : end.words.ways

            PushButton {
                required property var modelData

                text: modelData.text
                onClicked: modelData.go()
            }
        }
    }
}
