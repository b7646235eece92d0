import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Pages
import Loomstreet.Theme

// The stylist in a window of her own. What she shows opens in the window with pages that was in front last.
Window {
    id: window

    required property AppModel app
    required property SystemAppearance systemAppearance

    function applyStyle(): void {
        color = Qt.binding(() => Theme.surface)
    }
    function dock(): void {
        window.close()
        app.dockMira()
    }

    objectName: "miraWindow"
    width: 480
    height: 760
    minimumWidth: 360
    minimumHeight: 480
    title: qsTranslate("Loomstreet", "%1 – LOOMSTREET").arg(app.mira.guideName)
    color: Theme.surface
    LayoutMirroring.enabled: systemAppearance.isRightToLeft
    LayoutMirroring.childrenInherit: true
    onVisibleChanged: if (visible) chat.takeFocus()

    ThemeInputs {
        settings: window.app.settings
        system: window.systemAppearance
    }
    Shortcut {
        sequence: "Ctrl+W"
        enabled: !chat.covered
        onActivated: window.close()
    }
    Shortcut {
        sequence: "Ctrl+Shift+M"
        enabled: !chat.covered
        onActivated: window.dock()
    }
    Shortcut {
        sequence: "Ctrl+Q"
        onActivated: window.app.quitRequested()
    }

    MiraChat {
        id: chat

        anchors.fill: parent
        focus: true
        app: window.app
        shown: window.visible
        onDeparted: window.app.showPages()

        places: IconButton {
            objectName: "dockMira"
            iconName: "sidebar"
            text: qsTranslate("Loomstreet", "Show beside the Page")
            shortcut: "Ctrl Shift M"
            onClicked: window.dock()
        }
    }
}
