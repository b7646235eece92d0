import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Back and forward, where the shopper is and where to look, and the shop's market.
Item {
    id: bar

    required property AppModel app
    required property WindowSession session
    required property AppCommands commands
    property bool narrow: false

    readonly property Router router: session.selected

    signal pageWanted()

    // A key that was pressed where nothing takes text begins a search.
    function takeKey(text: string): void { search.takeKey(text) }

    implicitHeight: Theme.layoutTopBar

    // A window that is only coming forward would give the focus to its page afterwards.
    readonly property bool windowActive: Window.active

    function focusSearch(): void {
        if (!session.pendingSearchFocus || !windowActive)
            return
        session.pendingSearchFocus = false
        search.input.forceActiveFocus(Qt.ShortcutFocusReason)
        search.input.selectAll()
    }

    onWindowActiveChanged: focusSearch()

    Connections {
        target: bar.session
        function onPendingSearchFocusChanged(): void { bar.focusSearch() }
    }
    Row {
        id: buttons

        anchors { left: parent.left; leftMargin: bar.narrow ? Theme.space2 : Theme.space2 + 4; verticalCenter: parent.verticalCenter }
        spacing: Theme.spaceHalf

        HistoryButton {
            objectName: "nav.back"
            router: bar.router
            iconName: "chevron.left"
            text: qsTranslate("Loomstreet", "Back")
            shortcut: "Alt Left"
        }
        HistoryButton {
            objectName: "nav.forward"
            router: bar.router
            forward: true
            iconName: "chevron.right"
            text: qsTranslate("Loomstreet", "Forward")
            shortcut: "Alt Right"
        }
        IconButton {
            objectName: "reload"
            visible: !bar.narrow
            iconName: "arrow.clockwise"
            text: qsTranslate("Loomstreet", "Reload This Page")
            shortcut: "Ctrl R"
            onClicked: bar.router.reload()
        }
    }
    SearchBar {
        id: search

        anchors { left: buttons.right; leftMargin: Theme.space3; verticalCenter: parent.verticalCenter }
        width: Math.min(560, bar.width - buttons.width - buttons.anchors.leftMargin - end.width - end.anchors.rightMargin - Theme.space3 - Theme.space2)
        app: bar.app
        session: bar.session
        shortcut: bar.narrow ? "" : "Ctrl K"
        onFinished: bar.pageWanted()

        resting: Breadcrumb {
            anchors.left: parent.left
            room: parent.width
            crumbs: (bar.router?.trail ?? []).map(title => title === "" ? "…" : title)
            onActivated: index => bar.router.backTo(index)
        }
    }
    Row {
        id: end

        anchors { right: parent.right; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }
        spacing: Theme.space1

        UpdateButton {
            anchors.verticalCenter: parent.verticalCenter
            updater: bar.app.updater
            session: bar.session
            narrow: bar.narrow
            onFocusLeft: bar.pageWanted()
        }
        MarketButton {
            anchors.verticalCenter: parent.verticalCenter
            app: bar.app
            narrow: bar.narrow
        }
        IconButton {
            objectName: "footprints"
            anchors.verticalCenter: parent.verticalCenter
            visible: !bar.narrow
            iconName: "footprints"
            on: bar.session.isHistoryOpen
            text: qsTranslate("Loomstreet", "Footprints")
            shortcut: "Ctrl H"
            onClicked: bar.session.isHistoryOpen = !bar.session.isHistoryOpen
        }
        IconButton {
            objectName: "inbox"
            anchors.verticalCenter: parent.verticalCenter
            iconName: "bell"
            badge: bar.app.badge.count
            on: bar.session.isInboxOpen
            text: qsTranslate("Loomstreet", "Notifications")
            shortcut: "Ctrl Shift I"
            onClicked: bar.session.isInboxOpen = !bar.session.isInboxOpen
        }
        CallSign {
            objectName: "callSign"
            anchors.verticalCenter: parent.verticalCenter
            visible: call.isActive && (call.isWindowShown || !bar.session.isMiraDocked)
            call: bar.app.call
            brief: bar.narrow
        }
        IconButton {
            objectName: "mira"
            anchors.verticalCenter: parent.verticalCenter
            iconName: "sparkles"
            on: bar.session.isMiraDocked
            text: bar.app.mira.guideName
            shortcut: "Ctrl Shift M"
            onClicked: bar.session.isMiraDocked = !bar.session.isMiraDocked
        }
        IconButton {
            objectName: "bag"
            anchors.verticalCenter: parent.verticalCenter
            iconName: "bag"
            badge: bar.app.cart.itemCount
            on: bar.session.isCartOpen
            text: qsTranslate("Loomstreet", "Shopping bag")
            shortcut: "Ctrl Shift B"
            onClicked: bar.session.isCartOpen = !bar.session.isCartOpen
        }
        AccountButton {
            objectName: "account"
            anchors.verticalCenter: parent.verticalCenter
            auth: bar.app.auth
            on: bar.session.isSignInPresented
            onClicked: {
                if (bar.app.auth.isSignedIn)
                    bar.router.openAccount()
                else
                    bar.session.isSignInPresented = true
            }
        }
        IconButton {
            id: menuButton

            objectName: "menu"
            anchors.verticalCenter: parent.verticalCenter
            iconName: "menu"
            text: qsTranslate("Loomstreet", "Menu")
            on: menu.made?.visible ?? false
            showsToolTip: !on
            onClicked: menu.toggle()

            // Made when it is first asked for.
            Loader {
                id: menu

                readonly property var made: item

                function toggle(): void {
                    if (status === Loader.Null)
                        setSource("AppMenu.qml", { commands: bar.commands })
                    if (made.visible)
                        made.close()
                    else
                        made.open()
                }

                x: menuButton.mirrored || !made ? 0 : menuButton.width - made.width
                y: menuButton.height + Theme.spaceHalf
            }
        }
    }
    Hairline {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
    }    // Below the bar the page steps back while there are suggestions, and a press on it closes them.
    MouseArea {
        anchors { left: parent.left; right: parent.right; top: parent.bottom }
        height: (bar.parent?.height ?? 0) - bar.height
        visible: search.suggesting
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onPressed: {
            search.dismissed = true
            bar.pageWanted()
        }
        onWheel: wheel => { wheel.accepted = true }

        Rectangle {
            anchors.fill: parent
            color: Theme.scrim
            opacity: Theme.alphaScrimPanel
        }
    }
    Loader {
        id: suggestions

        readonly property bool wanted: search.suggesting
        readonly property var made: item
        readonly property bool wide: (made?.wantedWidth ?? 0) > 600

        anchors { left: bar.narrow && wide ? parent.left : search.left; leftMargin: bar.narrow && wide ? Theme.space2 : 0; top: search.bottom; topMargin: 6 }
        width: {
            const before = bar.narrow && wide ? Theme.space2 : search.anchors.leftMargin + buttons.width + buttons.anchors.leftMargin
            return Math.min(Math.max(made?.wantedWidth ?? 760, wide ? 0 : search.width), bar.width - before - Theme.space2)
        }
        visible: wanted
        onWantedChanged: {
            if (wanted && status === Loader.Null)
                setSource("SuggestionPanel.qml", { suggestions: search.suggestions })
        }

        Binding {
            target: suggestions.item
            property: "availableHeight"
            value: (bar.parent?.height ?? 0) - bar.height
        }
        Connections {
            target: suggestions.item
            function onOpened(section: int, key: string, text: string, inNewTab: bool): void { search.open(section, key, text, inNewTab) }
            function onSearchByImageAsked(): void { search.searchByImage() }
        }
    }
}
