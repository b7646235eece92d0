import QtQuick
import Loomstreet.Model

// Where a look is put together and bought. Opened again with the same pieces it is as it was left.
SheetPlace {
    id: place

    required property AppModel app
    required property WindowSession session

    property var handles: []
    property MiraLookModel look: null
    property QtObject holder: null // the look ends with it

    function openLook(pieces: var): void {
        if (look && !look.isInCart && JSON.stringify(pieces) === JSON.stringify(handles)) {
            look.retry()
            present("LookView.qml", { app: app, session: session, look: look })
            return
        }
        const former = holder
        handles = pieces
        holder = holders.createObject(place)
        look = app.makeLook(holder, pieces)
        present("LookView.qml", { app: app, session: session, look: look })
        former?.destroy()
    }

    // Sizes that suit one shopper are nothing to the next.
    Connections {
        target: place.app.auth
        function onSessionChanged(): void {
            place.withdraw()
            place.handles = [] // the next is made anew
        }
    }
    Component {
        id: holders

        QtObject {}
    }
}
