import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The shopper's account: who is signed in, and the ways to everything that belongs to them.
PageBase {
    id: page

    readonly property AuthStore auth: app.auth
    readonly property bool known: auth.phase !== AuthStore.Unknown
    readonly property bool stuck: !known && auth.isStuck

    readonly property int unreadReplies: app.support.unreadCount
    readonly property var supportWay: ({
        id: "support", icon: "headphones", title: qsTranslate("Loomstreet", "Customer Service"),
        note: unreadReplies === 0 ? qsTranslate("Loomstreet", "Orders, returns and sizes")
                                  : qsTranslate("Loomstreet", "%Ln new messages", "", unreadReplies)
    })

    title: qsTranslate("Loomstreet", "MyLST")
    settled: known || stuck
    flickable: flick

    function takeFocus(): void {
        if (known && !auth.isSignedIn)
            invitation.forceActiveFocus()
        else
            flick.forceActiveFocus()
    }
    function reload(): void { auth.load() }
    function follow(id: string): void {
        switch (id) {
        case "orders": return router.openOrders()
        case "tracking": return router.openTracking()
        case "returns": return router.openReturns()
        case "wishlist": return router.openWishlist()
        case "alerts": return router.openAlerts()
        case "membership": return router.openMembership()
        case "coupons": return router.openCoupons()
        case "profile": return router.openProfile()
        case "privacy": return app.showSettings("privacy")
        case "support": return void (session.isSupportOpen = true)
        }
    }

    onShownChanged: if (!shown) questions.withdraw()

    AccountQuestions {
        id: questions

        app: page.app
    }
    Flickable {
        id: flick

        objectName: "flick"
        anchors.fill: parent
        visible: !page.stuck
        contentHeight: column.height + Theme.space4 + Theme.space8
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar {}

        FocusFollower { flickable: flick }

        Column {
            id: column

            anchors { left: parent.left; right: parent.right; top: parent.top }
            anchors { leftMargin: page.padding; rightMargin: page.padding; topMargin: page.narrow ? Theme.space3 : Theme.space4 }
            spacing: Theme.space5

            AccountInvitation {
                id: invitation

                objectName: "invitation"
                width: parent.width
                visible: page.known && !page.auth.isSignedIn
                narrow: page.narrow
                outcome: questions.outcome
                onSignInAsked: page.session.isSignInPresented = true
                onCreateAsked: {
                    page.app.signIn.mode = "create"
                    page.session.isSignInPresented = true
                }
            }
            AccountHead {
                width: parent.width
                visible: page.auth.isSignedIn
                auth: page.auth
                narrow: page.narrow
                onSignOutAsked: questions.askToSignOut()
            }
            AccountWays {
                objectName: "orderWays"
                width: parent.width
                visible: page.auth.isSignedIn
                title: qsTranslate("Loomstreet", "Orders")
                ways: [
                    { id: "orders", icon: "shippingbox", title: qsTranslate("Loomstreet", "Orders"), note: qsTranslate("Loomstreet", "On their way, and bought before") },
                    { id: "tracking", icon: "truck", title: qsTranslate("Loomstreet", "Track a package"), note: qsTranslate("Loomstreet", "By its number or the order’s") },
                    { id: "returns", icon: "return", title: qsTranslate("Loomstreet", "Returns"), note: qsTranslate("Loomstreet", "Send something back") }
                ]
                onChosen: id => page.follow(id)
            }
            AccountWays {
                objectName: "shopperWays"
                width: parent.width
                visible: page.auth.isSignedIn
                title: qsTranslate("Loomstreet", "For you")
                ways: [
                    { id: "wishlist", icon: "heart", title: qsTranslate("Loomstreet", "Wishlist"), note: page.app.wishlist.count === 0 ? qsTranslate("Loomstreet", "Nothing saved yet") : qsTranslate("Loomstreet", "%Ln pieces", "", page.app.wishlist.count) },
                    { id: "alerts", icon: "bell", title: qsTranslate("Loomstreet", "Alerts"), note: qsTranslate("Loomstreet", "Back in stock, and lower prices") },
                    { id: "membership", icon: "crown", title: qsTranslate("Loomstreet", "Membership"), note: qsTranslate("Loomstreet", "Your tier and points") },
                    { id: "coupons", icon: "tag", title: qsTranslate("Loomstreet", "Coupons"), note: qsTranslate("Loomstreet", "Yours to use at checkout") }
                ]
                onChosen: id => page.follow(id)
            }
            AccountWays {
                objectName: "accountWays"
                width: parent.width
                visible: page.known
                title: page.auth.isSignedIn ? qsTranslate("Loomstreet", "Account") : qsTranslate("Loomstreet", "Without an account")
                ways: page.auth.isSignedIn
                      ? [{ id: "profile", icon: "person.crop.circle", title: qsTranslate("Loomstreet", "Profile"), note: qsTranslate("Loomstreet", "Name, birthday and newsletters") },
                         { id: "privacy", icon: "lock", title: qsTranslate("Loomstreet", "Privacy"), note: qsTranslate("Loomstreet", "What the store learns of you") },
                         page.supportWay]
                      : [{ id: "tracking", icon: "truck", title: qsTranslate("Loomstreet", "Track a package"), note: qsTranslate("Loomstreet", "By its number or the order’s") },
                         { id: "wishlist", icon: "heart", title: qsTranslate("Loomstreet", "Wishlist"), note: qsTranslate("Loomstreet", "Kept on this computer") },
                         { id: "privacy", icon: "lock", title: qsTranslate("Loomstreet", "Privacy"), note: qsTranslate("Loomstreet", "What the store learns of you") },
                         page.supportWay]
                onChosen: id => page.follow(id)
            }
            LinkButton {
                objectName: "deleteAccount"
                anchors.left: parent.left
                visible: page.auth.isSignedIn
                color: Theme.danger
                text: qsTranslate("Loomstreet", "Delete account…")
                onClicked: questions.askToDelete()
            }
            AccountSkeleton {
                width: parent.width
                visible: !page.known
            }
        }
    }
    ErrorState {
        objectName: "stuck"
        anchors.centerIn: parent
        visible: page.stuck
        width: Math.min(parent.width, 480)
        title: qsTranslate("Loomstreet", "Your keyring does not answer")
        sentence: qsTranslate("Loomstreet", "It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.")
        takesFocus: page.shown
        onRetry: page.reload()
    }
}
