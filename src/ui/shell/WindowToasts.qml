import QtQuick
import Loomstreet.Model
import Loomstreet.Theme

// What a window says in passing, below its tabs: news, also while another one is worked in, and what can be undone.
Column {
    id: toasts

    required property AppModel app
    required property WindowSession session

    spacing: Theme.space1
    move: Transition {
        NumberAnimation { property: "y"; duration: Theme.durationHover }
    }

    NotificationBanner {
        anchors.horizontalCenter: parent.horizontalCenter
        banners: toasts.app.banners
        windowNumber: toasts.app.banners.numberOf(toasts.session)
    }
    Column {
        width: parent.width
        visible: Window.active
        spacing: toasts.spacing

        UndoToast {
            anchors.horizontalCenter: parent.horizontalCenter
            kept: toasts.app.wishlist
            listName: qsTranslate("Loomstreet", "Wishlist")
        }
        UndoToast {
            anchors.horizontalCenter: parent.horizontalCenter
            kept: toasts.app.recentlyViewed
            listName: qsTranslate("Loomstreet", "Recently viewed")
        }
        NotInterestedToast {
            anchors.horizontalCenter: parent.horizontalCenter
            hidden: toasts.app.notInterested
        }
    }
}
