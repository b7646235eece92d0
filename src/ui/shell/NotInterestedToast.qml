import QtQuick
import Loomstreet.Components
import Loomstreet.Model

// For ten seconds a piece that does not interest the shopper can be brought back.
Toast {
    id: toast

    required property NotInterested hidden

    // Another one that is hidden while the banner stands begins its time anew.
    function follow(): void {
        open = false
        open = hidden.canUndo
    }

    objectName: "notInterestedToast"
    iconName: "eye.slash"
    duration: 10000
    title: hidden.lastTitle
    text: qsTranslate("Loomstreet", "Not recommended any more on this computer.")
    actionText: qsTranslate("Loomstreet", "Undo")
    onActivated: hidden.undo()
    onDismissed: hidden.forgetUndo()

    Connections {
        target: toast.hidden
        function onLastChanged(): void { toast.follow() }
    }
    // As the button does, without the way to it.
    Shortcut {
        sequence: "Ctrl+Z"
        enabled: toast.open && toast.visible
        onActivated: toast.activated()
        // Of several things that can be undone: one after the other.
        onActivatedAmbiguously: toast.activated()
    }
}
