import QtQuick
import Loomstreet.Model

// The panels of a window, each made when it is first opened.
Item {
    id: panels

    required property AppModel app
    required property WindowSession session

    PanelPlace { wanted: panels.session.isCartOpen; panel: "CartPanel" }
    PanelPlace { wanted: panels.session.isHistoryOpen; panel: "FootprintsPanel" }
    PanelPlace { wanted: panels.session.isInboxOpen; panel: "InboxPanel" }
    PanelPlace { wanted: panels.session.isSupportOpen; panel: "SupportPanel" }

    component PanelPlace: Loader {
        property bool wanted: false
        property string panel: ""

        function make(): void {
            if (wanted && status === Loader.Null)
                setSource(panel + ".qml", { app: panels.app, session: panels.session })
        }

        anchors.fill: parent
        onWantedChanged: make()
        Component.onCompleted: make() // it may have been asked for before the window was there
    }
}
