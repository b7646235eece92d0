import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Pages
import Loomstreet.Theme

// The bag, slid in over the page.
Panel {
    id: panel

    required property AppModel app
    required property WindowSession session

    readonly property Router router: session.selected

    function close(): void { session.isCartOpen = false }

    objectName: "cartPanel"
    title: qsTranslate("Loomstreet", "Shopping bag")
    open: session.isCartOpen
    onCloseAsked: close()
    onOpenChanged: if (open) app.checkout.forgetError()

    headerActions: IconButton {
        objectName: "expandCart"
        iconName: "expand"
        text: qsTranslate("Loomstreet", "Expand to a Full Page")
        onClicked: panel.session.expandCart()
    }

    CartInspector {
        anchors.fill: parent
        app: panel.app
        session: panel.session
        padding: Theme.space3
        onShoppingContinued: panel.close()
        onPieceOpened: handle => {
            panel.close()
            panel.router.openLink("/products/" + handle)
        }
    }
}
