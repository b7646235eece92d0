import QtQuick
import Loomstreet.Model
import Loomstreet.Theme

// What every page is given, and what it tells the host it stands in.
FocusScope {
    id: page

    required property PageContext context

    readonly property AppModel app: context.app
    readonly property WindowSession session: context.session
    readonly property Router router: context.router
    readonly property bool shown: context.shown

    // What of the page scrolls, if anything does, and where it is scrolled to; the host keeps the place too.
    property Flickable flickable: null
    property real scrollY: place.scrollY
    property string title
    // The first pictures of the page have been decoded.
    property bool settled: false

    readonly property int measuredWidth: session.windowWidth - Theme.layoutSidebarRegular
    readonly property bool narrow: measuredWidth < Theme.breakpointNarrow
    readonly property int padding: {
        const least = narrow ? Theme.layoutPagePaddingNarrow : Theme.layoutPagePaddingRegular
        return Math.max(least, Math.floor((width - Theme.layoutMaximumPage) / 2))
    }

    // A page gives the focus to what it is about.
    function takeFocus(): void { page.forceActiveFocus() }
    function scrollTo(y: real): void { place.goTo(y) }
    function reload(): void {}
    // In place: the models of pages show what they have until something newer has arrived.
    function refresh(): void { reload() }

    onTitleChanged: router?.setPageTitle(context.depth, title) // the router may go first
    Component.onCompleted: if (title !== "") router.setPageTitle(context.depth, title)

    AwaitedPlace {
        id: place

        flickable: page.flickable
    }
}
