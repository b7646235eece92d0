import QtQuick
import Loomstreet.Components
import Loomstreet.Model

// A piece that does not interest the shopper can be brought back.
UndoBanner {
    id: toast

    required property NotInterested hidden

    objectName: "notInterestedToast"
    iconName: "eye.slash"
    title: hidden.lastTitle
    text: qsTranslate("Loomstreet", "Not recommended any more on this computer.")
    onActivated: hidden.undo()
    onDismissed: hidden.forgetUndo()

    Connections {
        target: toast.hidden
        function onLastChanged(): void { toast.follow(toast.hidden.canUndo) }
    }
}
