pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What became known of a number: its packages, below each other, and the order they are of.
Column {
    id: tracked

    property TrackingModel tracking: null

    signal orderAsked(string id)
    signal carrierAsked(string url)

    spacing: Theme.space4

    Repeater {
        model: tracked.tracking?.packages ?? []

        PackageTimeline {
            width: tracked.width
            onCarrierAsked: url => tracked.carrierAsked(url)
        }
    }
    PushButton {
        objectName: "order"
        anchors.left: parent.left
        visible: (tracked.tracking?.orderId ?? "") !== ""
        size: "small"
        iconName: "shippingbox"
        text: qsTranslate("Loomstreet", "Order %1").arg(tracked.tracking?.orderName ?? "")
        onClicked: tracked.orderAsked(tracked.tracking.orderId)
    }
}
