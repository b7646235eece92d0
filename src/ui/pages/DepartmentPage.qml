pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// A department: the collections it is made of.
PageBase {
    id: page

    readonly property string name: context.entry?.title ?? ""
    readonly property CollectionTilesModel collections: context.model
    readonly property bool hasContent: collections ? collections.count > 0 : false
    readonly property bool failed: collections ? !hasContent && !collections.isLoading && collections.errorText !== "" : false
    readonly property bool empty: collections ? !hasContent && collections.isLoaded && collections.errorText === "" : false

    title: name
    settled: tiles.decoded > 0 || failed || empty
    flickable: flick

    function takeFocus(): void { flick.forceActiveFocus() }
    function reload(): void { collections.reload() }

    onShownChanged: if (shown && collections) collections.load()
    Component.onCompleted: if (shown && collections) collections.load()

    OfflineStrip {
        id: strip

        objectName: "strip"
        offline: page.collections?.isOffline ?? false
        canRetry: true
        onRetry: page.reload()
        width: parent.width
        visible: page.hasContent && text !== ""
        text: page.collections ? page.collections.errorText : ""
    }
    Flickable {
        id: flick

        objectName: "flick"
        anchors { left: parent.left; right: parent.right; top: strip.visible ? strip.bottom : parent.top; bottom: parent.bottom }
        visible: !page.failed && !page.empty
        contentHeight: column.height + Theme.space3 + Theme.space8
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar {}

        FocusFollower { flickable: flick }

        Column {
            id: column

            anchors { left: parent.left; right: parent.right; top: parent.top; leftMargin: page.padding; rightMargin: page.padding; topMargin: Theme.space3 }
            spacing: Theme.space3

            SectionHeader {
                width: parent.width
                type: page.narrow ? Theme.type.heading : Theme.type.title
                title: page.name
            }
            TileGrid {
                id: tiles

                objectName: "tiles"
                width: parent.width
                collections: page.collections
                onOpened: (handle, title) => page.router.openCollection(handle, title)
            }
        }
    }
    ErrorState {
        objectName: "error"
        anchors.centerIn: parent
        visible: page.failed
        width: Math.min(parent.width, 480)
        sentence: page.collections?.errorText ?? ""
        takesFocus: page.shown
        onRetry: page.collections.reload()
    }
    EmptyState {
        objectName: "missing"
        anchors.centerIn: parent
        visible: page.empty
        width: Math.min(parent.width, 480)
        iconName: "info"
        title: qsTranslate("Loomstreet", "Nothing here yet")
        sentence: qsTranslate("Loomstreet", "New pieces arrive every week.")

        PushButton {
            text: qsTranslate("Loomstreet", "Explore")
            onClicked: page.router.selectItem(0)
        }
    }
}
