import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The end of a collection's list: more on its way, more that did not come, or no more.
Item {
    id: footer

    property CollectionModel collection

    implicitHeight: 80

    Spinner {
        anchors.centerIn: parent
        visible: footer.collection?.isLoadingMore ?? false
        running: visible
    }
    Column {
        anchors.centerIn: parent
        visible: footer.collection?.hasLoadMoreFailed ?? false
        spacing: Theme.space1

        TextLabel {
            anchors.horizontalCenter: parent.horizontalCenter
            text: footer.collection?.loadMoreErrorText ?? ""
            type: Theme.type.small
            color: Theme.muted
        }
        PushButton {
            objectName: "retryMore"
            anchors.horizontalCenter: parent.horizontalCenter
            size: "small"
            text: qsTranslate("Loomstreet", "Try again")
            onClicked: footer.collection.loadMore()
        }
    }
    TextLabel {
        objectName: "end"
        anchors.centerIn: parent
        visible: footer.collection ? !footer.collection.hasNextPage && !footer.collection.isLoadingMore : false
        text: qsTranslate("Loomstreet", "You've seen all ") + (footer.collection ? footer.collection.products.count : "")
        type: Theme.type.small
        figures: true
        color: Theme.muted
    }
}
