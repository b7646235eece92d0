import QtQuick
import Loomstreet.Components

// The stylist on a page of her own.
PageBase {
    id: page

    function takeFocus(): void { chat.takeFocus() }
    function reload(): void { app.mira.refresh() }
    // Beside whatever was shown before.
    function dock(): void {
        session.isMiraDocked = true
        if (!shown)
            return
        if (router.canGoBack)
            router.back()
        else
            router.selectItem(0)
    }

    title: app.mira.guideName
    settled: true
    // She is in one place of the window only.
    onShownChanged: if (shown) session.isMiraDocked = false
    Component.onCompleted: if (shown) session.isMiraDocked = false

    Connections {
        target: page.session
        function onPanelsChanged(): void {
            if (page.shown && page.session.isMiraDocked)
                page.dock()
        }
    }
    MiraChat {
        id: chat

        anchors.fill: parent
        focus: true
        app: page.app
        session: page.session
        shown: page.shown

        places: [
            IconButton {
                objectName: "expandMira"
                iconName: "expand"
                text: qsTranslate("Loomstreet", "Open in a Window")
                onClicked: page.app.showMira()
            },
            IconButton {
                objectName: "dockMira"
                iconName: "sidebar"
                text: qsTranslate("Loomstreet", "Show beside the Page")
                shortcut: "Ctrl Shift M"
                onClicked: page.session.isMiraDocked = true
            }
        ]
    }
}
