import QtQuick
import Loomstreet.Model
import Loomstreet.Shell
import Loomstreet.Theme

// The place of what stands beside a page: nothing until it is first wanted, then kept.
FocusScope {
    id: place

    required property AppModel app
    required property WindowSession session
    required property string pane
    property bool large: false // made between frames, and seen when all of it is there
    property bool wanted: false
    property real paneWidth: 0
    property Component compiled: null

    // It went, and the keyboard was in it.
    signal focusLeft()

    function follow(): void {
        if (!wanted) {
            if (activeFocus)
                focusLeft()
        } else if (loader.status === Loader.Null && !compiled) {
            if (large)
                compile()
            else
                make()
        }
    }
    function make(): void { loader.setSource(pane, { app: app, session: session }) }
    function compile(): void {
        compiled = Qt.createComponent(pane, Component.Asynchronous, place)
        if (compiled.status === Component.Loading)
            compiled.statusChanged.connect(slice)
        else
            slice()
    }
    function slice(): void { slices.begin(make) }

    width: wanted ? paneWidth : 0
    visible: wanted
    onWantedChanged: follow()
    Component.onCompleted: follow() // it may have been there when the window closed

    SlicedIncubation {
        id: slices
    }
    Rectangle {
        anchors.fill: parent
        visible: !loader.visible
        color: Theme.surface
    }
    Loader {
        id: loader

        anchors.fill: parent
        focus: true
        asynchronous: place.large
        visible: !place.large || status === Loader.Ready
    }
}
