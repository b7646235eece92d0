import QtQuick
import Loomstreet.Model

// The panels of a window, each made when it is first opened.
Item {
    id: panels

    required property AppModel app
    required property WindowSession session

    component Place: PanePlace {
        anchors.fill: parent
        paneWidth: parent?.width ?? 0
        visible: true // a panel that closes is still to be seen
    }

    Place { app: panels.app; session: panels.session; pane: "CartPanel.qml"; wanted: panels.session.isCartOpen }
    Place { app: panels.app; session: panels.session; pane: "FootprintsPanel.qml"; wanted: panels.session.isHistoryOpen }
    Place { app: panels.app; session: panels.session; pane: "InboxPanel.qml"; wanted: panels.session.isInboxOpen }
    Place { app: panels.app; session: panels.session; pane: "SupportPanel.qml"; wanted: panels.session.isSupportOpen }
}
