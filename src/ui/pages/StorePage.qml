import QtQuick
import Loomstreet.Components
import Loomstreet.Theme

// A section that has no page of its own shows the store's own web page. One is alive in a window; a hidden one goes
// after a minute and comes back where it was.
PageBase {
    id: page

    readonly property string name: context.entry?.title ?? ""
    readonly property var view: holder.item
    property real keptScrollY: 0
    property bool live: false
    // What a page of the store knows of an account it knows no longer than the application does.
    readonly property string account: app.auth.email

    function reload(): void {
        if (view)
            view.view.reload()
    }
    function scrollTo(y: real): void { keptScrollY = y }
    function takeFocus(): void { holder.forceActiveFocus() }
    function wake(): void {
        if (!shown)
            return
        live = true
        session.claimWebPage(page)
    }

    title: name !== "" ? name : view?.view?.title ?? ""
    settled: live && (view?.loaded ?? false)
    scrollY: view?.view ? view.view.scrollPosition.y : keptScrollY

    onShownChanged: {
        if (shown)
            wake()
        else
            keptScrollY = scrollY
    }
    onAccountChanged: {
        live = false
        wake()
    }
    Component.onCompleted: wake()

    Connections {
        target: page.session
        function onWebPageClaimed(owner: QtObject): void {
            if (owner !== page)
                page.live = false
        }
    }
    Timer {
        interval: 60000
        running: page.live && !page.shown
        onTriggered: page.live = false
    }

    Loader {
        id: holder

        anchors.fill: parent
        active: page.live
        focus: true
        source: page.live ? "StorePageView.qml" : ""
        onLoaded: {
            item.app = page.app
            item.address = page.context.entry.address
            item.restoredScrollY = page.keptScrollY
            item.linkActivated.connect(link => page.router.openFromStorePage(link))
        }
    }
}
