import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The bag on a page of its own.
PageBase {
    id: page

    function reload(): void { app.cart.refresh() }
    title: qsTranslate("Loomstreet", "Cart")
    settled: inspector.presentation !== CartModel.Loading

    Item {
        id: header

        anchors { left: parent.left; right: parent.right; leftMargin: page.padding; rightMargin: page.padding }
        height: words.implicitHeight + 2 * Theme.space2

        TextLabel {
            id: words

            objectName: "title"
            anchors { left: parent.left; right: drawer.left; rightMargin: Theme.space1; verticalCenter: parent.verticalCenter }
            text: qsTranslate("Loomstreet", "Shopping bag")
            type: page.narrow ? Theme.type.heading : Theme.type.title
            Accessible.role: Accessible.Heading
        }
        IconButton {
            id: drawer

            objectName: "showAsDrawer"
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            iconName: "sidebar"
            text: qsTranslate("Loomstreet", "Show as Side Drawer")
            onClicked: page.session.dockCart()
        }
    }
    Hairline {
        anchors { left: parent.left; right: parent.right; top: header.bottom }
    }
    CartInspector {
        id: inspector

        anchors { fill: parent; topMargin: header.height + Theme.strokeHairline }
        focus: true
        app: page.app
        session: page.session
        beside: page.width >= 840
        padding: page.padding
        backdrop: Theme.paper
        onShoppingContinued: page.session.leaveCart()
        onPieceOpened: handle => page.router.openLink("/products/" + handle)
    }
}
