import QtQuick
import Loomstreet.Components
import Loomstreet.Model

// A quiet way to be told when a piece costs less, and to withdraw that.
PushButton {
    id: control

    property AppModel app
    property ProductModel product
    property WindowSession session

    readonly property ProductAlerts alerts: app && product ? app.makeProductAlerts(product, product) : null
    readonly property bool isSet: alerts?.isPriceSet ?? false

    objectName: "priceAlert"
    visible: alerts?.offersPrice ?? false
    size: "small"
    kind: "quiet"
    iconName: isSet ? "checkmark" : "bell"
    on: isSet
    text: isSet ? qsTranslate("Loomstreet", "We'll email you when it costs less") : qsTranslate("Loomstreet", "Tell me about a price drop")
    onClicked: alerts.togglePrice()

    Accessible.checkable: true
    Accessible.checked: isSet

    AlertSignIn {
        alerts: control.alerts
        session: control.session
    }
    HoverToolTip {
        control: control
        text: control.isSet ? qsTranslate("Loomstreet", "Press to withdraw") : ""
    }
}
