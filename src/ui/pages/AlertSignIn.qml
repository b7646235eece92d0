import QtQuick
import Loomstreet.Model

// Asks a guest who wants to be told of a piece to sign in, and forgets the wish when they do not.
Item {
    id: asking

    property ProductAlerts alerts
    property WindowSession session

    property bool waits: false

    function end(): void {
        if (waits && alerts)
            alerts.dropWish()
        waits = false
    }

    Component.onDestruction: end()

    Connections {
        target: asking.alerts
        function onSignInWanted(): void {
            asking.session.isSignInPresented = true
            asking.waits = true
        }
    }
    Connections {
        target: asking.waits ? asking.session : null
        function onPanelsChanged(): void { if (!asking.session.isSignInPresented) asking.end() }
    }
}
