import QtQml
import Loomstreet.Model

// What the host of a page knows and the page needs: where it is, what it shows, and whether it is shown.
QtObject {
    required property AppModel app
    required property WindowSession session
    required property Router router
    // The place in the tab's stack, 0 for the root of the section.
    required property int depth
    // What the router says of the page.
    required property var entry
    // What the page is of; the host keeps it while the page itself comes and goes.
    property var model: null
    // On top of the selected tab.
    property bool shown: false
}
