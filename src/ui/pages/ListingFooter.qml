import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// The end of a list: more on its way, more that did not come, or no more.
Item {
    id: footer

    property var listing: null // a ProductListing, or what loads on like one
    property int count: listing ? listing.products.count : 0

    signal focusFreed()

    implicitHeight: 80

    Spinner {
        anchors.centerIn: parent
        visible: footer.listing?.isLoadingMore ?? false
        running: visible
    }
    Column {
        anchors.centerIn: parent
        visible: footer.listing?.hasLoadMoreFailed ?? false
        spacing: Theme.space1

        TextLabel {
            anchors.horizontalCenter: parent.horizontalCenter
            text: footer.listing?.loadMoreErrorText ?? ""
            type: Theme.type.small
            color: Theme.muted
        }
        PushButton {
            objectName: "retryMore"
            anchors.horizontalCenter: parent.horizontalCenter
            size: "small"
            text: qsTranslate("Loomstreet", "Try again")
            onClicked: {
                footer.focusFreed()
                footer.listing.loadMore()
            }
        }
    }
    TextLabel {
        objectName: "end"
        anchors.centerIn: parent
        visible: footer.listing ? !footer.listing.hasNextPage && !footer.listing.isLoadingMore : false
        text: qsTranslate("Loomstreet", "You've seen all %Ln", "", footer.count)
        type: Theme.type.small
        figures: true
        color: Theme.muted
    }
}
