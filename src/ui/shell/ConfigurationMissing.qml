import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// All there is to see of a build that belongs to no store.
Window {
    id: window

    required property SystemAppearance systemAppearance

    objectName: "configurationMissing"
    width: 720
    height: 560
    visible: true
    title: "LOOMSTREET"
    color: Theme.paper
    // On the window, so that menus and tooltips are mirrored as well.
    LayoutMirroring.enabled: systemAppearance.isRightToLeft
    LayoutMirroring.childrenInherit: true
    onClosing: Qt.quit()

    ThemeInputs { system: window.systemAppearance }

    Shortcut {
        sequences: ["Ctrl+Q", "Ctrl+W"]
        onActivated: Qt.quit()
    }
    Item {
        anchors.fill: parent
        EmptyState {
            anchors.centerIn: parent
            width: Math.min(parent.width, 520)
            iconName: "gear"
            title: qsTranslate("Loomstreet", "LOOMSTREET isn't configured")
            sentence: qsTranslate("Loomstreet", "Run scripts/sync-secrets.sh in the project folder, then build again.")
            focus: true

            PushButton {
                objectName: "quit"
                focus: true
                text: qsTranslate("Loomstreet", "Quit")
                onClicked: Qt.quit()
            }
        }
    }
}
