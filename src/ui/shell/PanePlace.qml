import QtQuick
import Loomstreet.Model
import Loomstreet.Theme

// The place of what stands beside a page: nothing until it is first wanted, then kept.
Loader {
    id: place

    required property AppModel app
    required property WindowSession session
    required property string pane
    property bool wanted: false
    property real paneWidth: 0

    // It went, and the keyboard was in it.
    signal focusLeft()

    function follow(): void {
        if (wanted && status === Loader.Null)
            setSource(pane, { app: app, session: session })
        else if (!wanted && activeFocus)
            focusLeft()
    }

    width: wanted ? paneWidth : 0
    visible: wanted
    onWantedChanged: follow()
    Component.onCompleted: follow() // it may have been there when the window closed

    Rectangle {
        anchors.fill: parent
        visible: place.status === Loader.Loading
        color: Theme.surface
    }
}
