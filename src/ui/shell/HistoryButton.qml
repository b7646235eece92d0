import QtQuick
import Loomstreet.Components
import Loomstreet.Model

// Back, or forward: a press goes one page, held down or pressed with the other button it shows where else to.
IconButton {
    id: button

    required property Router router
    property bool forward: false

    function showMenu(): void {
        if (menu.status === Loader.Null)
            menu.setSource("HistoryMenu.qml", { router: Qt.binding(() => button.router), forward: button.forward })
        menu.made.open()
    }

    enabled: router ? forward ? router.canGoForward : router.canGoBack : false
    on: menu.made?.visible ?? false
    showsToolTip: !on
    onClicked: forward ? router.forward() : router.back()
    onPressAndHold: showMenu()

    Keys.onDownPressed: showMenu()
    Keys.onMenuPressed: showMenu()

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        onClicked: button.showMenu()
    }
    // Made when it is first asked for.
    Loader {
        id: menu

        readonly property var made: item

        x: button.mirrored && made ? button.width - made.width : 0
        y: button.height
    }
}
