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

    // A link opens what it means; anything else is searched for.
    function go(): void {
        const text = search.text.trim()
        search.text = ""
        if (text === "")
            return
        const isLink = /^[a-z][a-z0-9+.-]*:\/\//i.test(text) || text.startsWith("/")
        if (!isLink || !router.openLink(text))
            router.openSearch(text)
        bar.pageWanted()
    }

    implicitHeight: Theme.layoutTopBar

    Connections {
        target: bar.session
        function onPendingSearchFocusChanged(): void {
            if (!bar.session.pendingSearchFocus)
                return
            bar.session.pendingSearchFocus = false
            search.input.forceActiveFocus(Qt.ShortcutFocusReason)
            search.input.selectAll()
        }
    }
    Row {
        id: buttons

        anchors { left: parent.left; leftMargin: bar.narrow ? Theme.space2 : Theme.space2 + 4; verticalCenter: parent.verticalCenter }
        spacing: Theme.spaceHalf

        IconButton {
            objectName: "nav.back"
            enabled: bar.router ? bar.router.canGoBack : false
            iconName: "chevron.left"
            text: qsTranslate("Loomstreet", "Back")
            shortcut: "Alt Left"
            onClicked: bar.router.back()
        }
        IconButton {
            objectName: "nav.forward"
            enabled: bar.router ? bar.router.canGoForward : false
            iconName: "chevron.right"
            text: qsTranslate("Loomstreet", "Forward")
            shortcut: "Alt Right"
            onClicked: bar.router.forward()
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
    SearchField {
        id: search

        objectName: "search"
        anchors { left: buttons.right; leftMargin: Theme.space3; verticalCenter: parent.verticalCenter }
        width: Math.min(560, bar.width - buttons.width - buttons.anchors.leftMargin - end.width - end.anchors.rightMargin - Theme.space3 - Theme.space2)
        placeholderText: qsTranslate("Loomstreet", "Search, or paste a link")
        shortcut: bar.narrow ? "" : "Ctrl K"
        onAccepted: bar.go()
        Keys.onEscapePressed: {
            text = ""
            bar.pageWanted()
        }

        resting: Breadcrumb {
            anchors.left: parent.left
            crumbs: (bar.router?.trail ?? []).map(title => title === "" ? "…" : title)
            onActivated: index => bar.router.backTo(index)
        }
    }
    Row {
        id: end

        anchors { right: parent.right; rightMargin: Theme.space2; verticalCenter: parent.verticalCenter }
        spacing: Theme.space1

        Row {
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.space1

            Icon {
                anchors.verticalCenter: parent.verticalCenter
                name: "globe"
                color: Theme.muted
            }
            TextLabel {
                objectName: "market"
                anchors.verticalCenter: parent.verticalCenter
                text: {
                    const parts = [bar.narrow ? "" : bar.app.market.countryName, bar.app.market.currency]
                    return parts.filter(part => part !== "").join(" · ")
                }
                type: Theme.type.label
            }
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
        IconButton {
            id: menuButton

            objectName: "menu"
            anchors.verticalCenter: parent.verticalCenter
            iconName: "menu"
            text: qsTranslate("Loomstreet", "Menu")
            on: menu.made?.visible ?? false
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
    }
}
