import QtQuick
import Loomstreet.Model

// The place of the sign-in sheet in a window. The sheet is made when it is first asked for.
Loader {
    id: place

    required property AppModel app
    property bool open: false
    property bool narrow: false

    signal closeAsked()

    function show(): void {
        if (open && status === Loader.Null)
            setSource("SignInSheet.qml", { app: app, narrow: narrow, open: true })
    }

    onOpenChanged: show()
    Component.onCompleted: show() // it may have been asked for before the window was there

    Binding {
        target: place.item
        property: "open"
        value: place.open
    }
    Binding {
        target: place.item
        property: "narrow"
        value: place.narrow
    }
    Connections {
        target: place.item
        function onCloseAsked(): void { place.closeAsked() }
    }
}
