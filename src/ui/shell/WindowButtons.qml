import QtQuick
import Loomstreet.Components

// Minimise, maximise and close, where no desktop's frame has them.
Row {
    id: buttons

    required property Window window

    IconButton {
        objectName: "window.minimise"
        iconName: "window.minimize"
        iconSize: 16
        text: qsTranslate("Loomstreet", "Minimize")
        focusPolicy: Qt.NoFocus
        onClicked: buttons.window.showMinimized()
    }
    IconButton {
        objectName: "window.maximise"
        readonly property bool isMaximized: buttons.window.visibility === Window.Maximized
        iconName: isMaximized ? "window.restore" : "window.maximize"
        iconSize: 16
        text: isMaximized ? qsTranslate("Loomstreet", "Restore") : qsTranslate("Loomstreet", "Maximize")
        focusPolicy: Qt.NoFocus
        onClicked: isMaximized ? buttons.window.showNormal() : buttons.window.showMaximized()
    }
    IconButton {
        objectName: "window.close"
        iconName: "xmark"
        iconSize: 16
        text: qsTranslate("Loomstreet", "Close window")
        focusPolicy: Qt.NoFocus
        onClicked: buttons.window.close()
    }
}
