import QtQuick

// For ten seconds what was taken away can be brought back, by the button or by the key.
Toast {
    id: banner

    // The key is for what is in front.
    property bool inFront: visible

    // Whether there is something to bring back. What is taken away while the banner stands begins its time anew.
    function follow(canUndo: bool): void {
        open = false
        open = canUndo
    }

    duration: 10000
    actionText: qsTranslate("Loomstreet", "Undo")

    // As the button does, without the way to it.
    Shortcut {
        sequence: "Ctrl+Z"
        enabled: banner.open && banner.inFront
        onActivated: banner.activated()
        // Of several things that can be undone: one after the other.
        onActivatedAmbiguously: banner.activated()
    }
}
