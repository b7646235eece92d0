import QtQuick
import Loomstreet.Components
import Loomstreet.Model

// For ten seconds what was taken out of a kept list can be put back.
Toast {
    id: toast

    required property KeptPieces kept
    property string listName // "Wishlist"

    readonly property int removed: kept.removedCount

    // What is taken out while the banner stands comes back with the rest, and begins its time anew.
    onRemovedChanged: {
        open = false
        open = removed > 0
    }
    objectName: "undoToast"
    open: removed > 0
    iconName: "trash"
    duration: 10000
    title: removed === 1 ? kept.removedTitle : qsTranslate("Loomstreet", "%1 pieces").arg(removed)
    text: qsTranslate("Loomstreet", "Removed from: %1").arg(listName)
    actionText: qsTranslate("Loomstreet", "Undo")
    onActivated: kept.undoRemoval()
    onDismissed: kept.forgetRemoval()

    // As the button does, without the way to it.
    Shortcut {
        sequence: "Ctrl+Z"
        enabled: toast.open && toast.visible
        onActivated: toast.activated()
        // Two lists can be undone: one after the other.
        onActivatedAmbiguously: toast.activated()
    }
}
