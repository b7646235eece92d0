import QtQml
import Loomstreet.Model

// What the host of a page knows and the page needs: where it is, what it shows, and whether it is shown.
QtObject {
    required property AppModel app
    required property WindowSession session
    required property Router router
    // By which the router knows the page.
    required property int pageID
    // What the router says of the page.
    required property var entry
    // What the page is of; the host keeps it while the page itself comes and goes.
    property var model: null
    // What else it shows that stays as the model does.
    property var beside: null
    // On top of the selected tab.
    property bool shown: false
}
