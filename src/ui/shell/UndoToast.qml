import QtQuick
import Loomstreet.Components
import Loomstreet.Model

// What was taken out of a kept list can be put back.
UndoBanner {
    id: toast

    required property KeptPieces kept
    property string listName // "Wishlist"

    readonly property int removed: kept.removedCount

    // What is taken out while the banner stands comes back with the rest.
    onRemovedChanged: follow(removed > 0)
    objectName: "undoToast"
    open: removed > 0
    iconName: "trash"
    title: removed === 1 ? kept.removedTitle : qsTranslate("Loomstreet", "%Ln pieces", "", removed)
    text: qsTranslate("Loomstreet", "Removed from: %1").arg(listName)
    onActivated: kept.undoRemoval()
    onDismissed: kept.forgetRemoval()
}
