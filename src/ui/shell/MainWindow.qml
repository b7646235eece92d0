pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// A window on the shop: tabs above, destinations at the side, the page of the selected tab between.
Window {
    id: window

    required property AppModel app
    required property WindowSession session
    required property SystemAppearance systemAppearance

    readonly property bool ownFrame: app.settings.windowFrame === "own"
    readonly property AppCommands commands: app.makeCommands(window, session)
    readonly property bool fullScreen: session.isWindowFullScreen
    readonly property bool narrow: session.contentWidth < Theme.breakpointNarrow
    // The window has been on the screen.
    property bool wasSeen: false
    // The page on top has what it needs to be looked at.
    readonly property bool settled: pages.settled
    // Something lies over everything that keys would reach.
    readonly property bool covered: session.lightbox !== undefined || session.isSignInPresented || isInSheet(activeFocusItem)

    function isInSheet(item: Item): bool {
        return item !== null && (item instanceof Sheet || isInSheet(item.parent))
    }
    function applyStyle(): void {
        color = Qt.binding(() => Theme.paper)
    }

    // As large as it was, as far as the screen allows.
    width: Math.min(session.lastWidth > 0 ? session.lastWidth : Theme.breakpointDefaultWindow.width, Screen.desktopAvailableWidth)
    height: Math.min(session.lastHeight > 0 ? session.lastHeight : Theme.breakpointDefaultWindow.height, Screen.desktopAvailableHeight)
    minimumWidth: Theme.breakpointMinimumWindow.width
    minimumHeight: Theme.breakpointMinimumWindow.height
    flags: ownFrame ? Qt.Window | Qt.FramelessWindowHint : Qt.Window
    title: session.selected ? qsTranslate("Loomstreet", "%1 – LOOMSTREET").arg(session.selected.title) : "LOOMSTREET"
    color: Theme.paper
    // On the window, so that menus and tooltips are mirrored as well.
    LayoutMirroring.enabled: systemAppearance.isRightToLeft
    LayoutMirroring.childrenInherit: true

    function keepSize(): void {
        if (wasSeen && visibility === Window.Windowed)
            session.keepSize(width, height)
    }

    onWidthChanged: {
        session.windowWidth = width
        keepSize()
    }
    onHeightChanged: keepSize()
    // The window manager has a say in it too. While a window is away it keeps what it was. The signal comes late and
    // what it carries may be over: what counts is how the window is now.
    onVisibilityChanged: () => {
        if (window.visibility === Window.FullScreen)
            session.isWindowFullScreen = true
        else if (window.visibility === Window.Windowed || window.visibility === Window.Maximized)
            session.isWindowFullScreen = false
        if (wasSeen && (window.visibility === Window.Windowed || window.visibility === Window.Maximized))
            session.isWindowMaximized = window.visibility === Window.Maximized
    }
    onFullScreenChanged: {
        if (fullScreen !== (visibility === Window.FullScreen))
            visibility = fullScreen ? Window.FullScreen : Window.Windowed
    }
    onActiveChanged: if (active) app.windowBecameKey(session)
    onClosing: app.closeWindow(session)
    Component.onCompleted: {
        session.window = window
        session.windowWidth = width
        pages.takeFocus()
        if (session.isWindowMaximized)
            visibility = Window.Maximized
    }

    Connections {
        target: window.session
        function onCloseRequested(): void { window.close() }
        function onScreenshotRequested(): void { screenshot.take() }
    }

    Connections {
        target: window.app.session
        function onIsOfflineChanged(): void {
            if (!window.app.session.isOffline)
                PictureAddress.retryBroken()
        }
    }
    ThemeInputs {
        settings: window.app.settings
        system: window.systemAppearance
    }
    PrefetchInputs {
        app: window.app
        session: window.session
        pageWidth: pages.width
    }
    CommandShortcuts {
        commands: window.commands
        enabled: !window.covered
    }

    Item {
        id: content

        anchors.fill: parent
        // A letter that nobody took, where nothing lies over the page, begins a search.
        function takeKey(event: var): void {
            const modifiers = event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier)
            if (modifiers !== 0 || event.text.length === 0 || event.text <= " " || event.text === "\x7f")
                return
            bar.takeKey(event.text)
            event.accepted = true
        }

        TabStrip {
            id: strip

            Keys.onPressed: event => content.takeKey(event)
            anchors { left: parent.left; right: parent.right; top: parent.top }
            session: window.session
            window: window
            ownFrame: window.ownFrame
            collapsed: sidebar.rail
        }
        CommandMenuBar {
            id: menuBar

            enabled: !window.covered
            anchors { left: parent.left; right: parent.right; top: strip.bottom }
            commands: window.commands
        }
        Sidebar {
            id: sidebar

            Keys.onPressed: event => content.takeKey(event)
            anchors { left: parent.left; top: menuBar.bottom; bottom: parent.bottom }
            app: window.app
            session: window.session
            rail: window.narrow || window.session.isSidebarCollapsed
        }
        Rectangle {
            // Its width follows no neighbour's edge: all of it would be laid out anew while they change sides.
            anchors { right: parent.right; top: menuBar.bottom; bottom: parent.bottom }
            width: parent.width - sidebar.width
            color: Theme.paper
            Keys.onPressed: event => content.takeKey(event)

            TopBar {
                id: bar

                z: 1 // what it suggests lies over the page
                anchors { left: parent.left; right: parent.right; top: parent.top }
                app: window.app
                session: window.session
                commands: window.commands
                narrow: window.narrow
                onPageWanted: pages.takeFocus()
            }
            TabPages {
                id: pages

                anchors { left: parent.left; top: bar.bottom; bottom: parent.bottom }
                width: parent.width - preview.width - (dock.covers ? 0 : dock.width)
                enabled: !dock.covers
                app: window.app
                session: window.session
                begun: window.wasSeen
            }
            // The piece beside the page.
            PanePlace {
                id: preview

                anchors { right: dock.covers ? parent.right : dock.left; top: bar.bottom; bottom: parent.bottom }
                app: window.app
                session: window.session
                pane: "PreviewPane.qml"
                wanted: window.session.isPreviewShown
                paneWidth: wanted ? window.session.selected.previewWidth : 0
                onFocusLeft: pages.takeFocus()
            }
            // The stylist beside both, or over them where too little would be left.
            PanePlace {
                id: dock

                readonly property bool covers: wanted && parent.width - Theme.layoutMiraDock < 560

                anchors { right: parent.right; top: bar.bottom; bottom: parent.bottom }
                app: window.app
                session: window.session
                pane: "MiraDock.qml"
                large: true
                wanted: window.session.isMiraDocked
                paneWidth: covers ? parent.width : Theme.layoutMiraDock
                onFocusLeft: pages.takeFocus()
            }
        }
        Hairline {
            anchors { left: sidebar.right; top: menuBar.bottom; bottom: parent.bottom }
        }
        Loader {
            id: screenshot

            readonly property var made: item

            function take(): void {
                if (status === Loader.Null)
                    setSource("Screenshot.qml", { app: window.app, subject: pages })
                made.take()
            }

            anchors { left: sidebar.right; right: parent.right; top: strip.bottom; bottom: parent.bottom }
        }
        // What slides in over the page, below the strip.
        WindowPanels {
            anchors { left: parent.left; right: parent.right; top: strip.bottom; bottom: parent.bottom }
            app: window.app
            session: window.session
        }
        // Signing in lies over all of them.
        SignInLoader {
            anchors.fill: parent
            app: window.app
            narrow: window.narrow
            open: window.session.isSignInPresented
            onCloseAsked: window.session.isSignInPresented = false
        }
        // Over panels, too.
        WindowToasts {
            anchors { left: sidebar.right; right: parent.right; top: strip.bottom; topMargin: Theme.space1_5 }
            app: window.app
            session: window.session
        }
        Loader {
            id: lightbox

            readonly property bool wanted: window.session.lightbox !== undefined

            anchors.fill: parent
            onWantedChanged: {
                if (wanted && status === Loader.Null)
                    setSource("Lightbox.qml", { session: window.session })
            }
        }
    }
    ResizeEdges {
        anchors.fill: parent
        window: window
        enabled: window.ownFrame && window.visibility === Window.Windowed
    }
}
