import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The size that suits the shopper, and the way to it.
PushButton {
    id: button

    property SizeAdviceModel advice

    readonly property bool known: advice?.isKnown ?? false
    readonly property bool chosen: advice?.isChosen ?? false
    readonly property bool available: advice?.isAvailable ?? false

    objectName: "sizeAdvice"
    size: "small"
    kind: "quiet"
    on: !chosen
    iconName: chosen ? "checkmark" : "ruler"
    locked: chosen || !available
    text: !known ? "" : qsTranslate("Loomstreet", "Recommended for you: %1").arg(Bidi.isolate(advice.recommendedSize))
    accessibleName: known && !available ? qsTranslate("Loomstreet", "%1, sold out").arg(text) : text
    onClicked: advice.choose()

    Accessible.checkable: true
    Accessible.checked: chosen
}
