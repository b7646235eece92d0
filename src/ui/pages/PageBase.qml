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

    readonly property bool narrow: session.contentWidth < Theme.breakpointNarrow
    // The piece that is shown beside the page.
    readonly property string previewed: shown && session.isPreviewShown ? router.preview.handle : ""
    readonly property int padding: {
        const least = narrow ? Theme.layoutPagePaddingNarrow
                             : session.isPreviewShown ? Theme.layoutPagePaddingBesidePane : Theme.layoutPagePaddingRegular
        return Math.max(least, Math.floor((width - Theme.layoutMaximumPage) / 2))
    }

    // A page gives the focus to what it is about.
    function takeFocus(): void { page.forceActiveFocus() }
    function scrollTo(y: real): void { place.goTo(y) }
    function reload(): void {}
    // In place: the models of pages show what they have until something newer has arrived.
    function refresh(): void { reload() }

    // Where a page has the focus and nothing in it that is a stop for the Tab key, the key goes on from there, not from
    // the beginning of the window.
    function goOn(event: var, forwards: bool): void {
        event.accepted = (event.modifiers & (Qt.ControlModifier | Qt.AltModifier)) === 0 && Window.activeFocusItem !== null
        if (event.accepted)
            Window.activeFocusItem.nextItemInFocusChain(forwards).forceActiveFocus(forwards ? Qt.TabFocusReason : Qt.BacktabFocusReason)
    }

    Keys.onTabPressed: event => goOn(event, true)
    Keys.onBacktabPressed: event => goOn(event, false)
    onTitleChanged: router?.setPageTitle(context.pageID, title) // the router may go first
    Component.onCompleted: if (title !== "") router.setPageTitle(context.pageID, title)

    AwaitedPlace {
        id: place

        flickable: page.flickable
    }
}
