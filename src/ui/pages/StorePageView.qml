import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme
import Loomstreet.Web

// The web view of a store's page with what stands before it: a wait, or a failure. Loaded on demand, because it brings
// the browser engine with it.
FocusScope {
    id: holder

    property AppModel app
    property alias address: web.address
    property alias restoredScrollY: web.restoredScrollY
    readonly property alias view: web
    property bool loaded: false

    signal linkActivated(string link)

    StoreWebView {
        id: web

        anchors.fill: parent
        focus: true
        visible: failure === ""
        language: holder.app ? holder.app.market.language : "en"
        storeAddress: holder.app ? holder.app.storeWebAddress : ""
        backgroundColor: Theme.paper
        onLinkActivated: link => holder.linkActivated(link)
        onLoadProgressChanged: if (loadProgress === 100) holder.loaded = true
    }
    Rectangle {
        anchors.fill: parent
        visible: !holder.loaded && web.failure === ""
        color: Theme.paper

        Column {
            anchors { fill: parent; margins: Theme.space4 }
            spacing: Theme.space3

            Skeleton { width: 280; height: 40 }
            Skeleton { width: parent.width; height: 240 }
            Skeleton { width: parent.width * 0.6; height: 20 }
            Skeleton { width: parent.width * 0.5; height: 20 }
        }
    }
    ErrorState {
        objectName: "error"
        anchors.centerIn: parent
        width: Math.min(parent.width, 480)
        visible: web.failure !== ""
        sentence: holder.app ? holder.app.session.connectionError : ""
        onRetry: web.reload()
    }
}
