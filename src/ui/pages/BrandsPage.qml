pragma ComponentBehavior: Bound
import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// The designers, by letter.
PageBase {
    id: page

    readonly property var brands: context.model
    readonly property int phase: brands ? brands.phase : BrandsModel.Loading
    readonly property bool found: phase === BrandsModel.Loaded && index.count > 0

    title: qsTranslate("Loomstreet", "Designers")
    settled: phase !== BrandsModel.Loading
    flickable: index

    function takeFocus(): void { (found ? index : page).forceActiveFocus() }
    function reload(): void { brands.reload() }
    function show(name: string): void { router.openSearch(name) }
    // The name, when only one is listed. The index itself may not be laid out yet when Enter is pressed.
    function onlyName(): string {
        const names = brands.letters.length === 1 ? brands.data(brands.index(0, 0), BrandsModel.BrandsRole) : []
        return names.length === 1 ? names[0].name : ""
    }
    function clearFilter(): void {
        header.clear()
        brands.filter = ""
    }

    onShownChanged: if (shown && brands) brands.load()
    Component.onCompleted: if (shown && brands) brands.load()

    OfflineStrip {
        id: strip

        objectName: "strip"
        width: parent.width
        visible: page.phase === BrandsModel.Loaded && text !== ""
        offline: page.brands?.isOffline ?? false
        canRetry: true
        text: page.brands ? page.brands.errorText : ""
        onRetry: page.reload()
    }
    BrandsHeader {
        id: header

        anchors { left: parent.left; right: parent.right; top: strip.visible ? strip.bottom : parent.top }
        padding: page.padding
        narrow: page.narrow
        visible: page.phase === BrandsModel.Loaded || page.phase === BrandsModel.Loading
        brands: page.brands
        currentLetter: page.brands?.letters[index.topRow] ?? ""
        onJumped: row => index.jumpTo(row)
        onPassedDown: index.enter()
        onAccepted: {
            const name = page.onlyName()
            if (name !== "")
                page.show(name)
            else
                index.enter()
        }
    }
    BrandsIndex {
        id: index

        anchors { left: parent.left; right: parent.right; top: header.bottom; bottom: parent.bottom }
        visible: page.found
        padding: page.padding
        narrow: page.narrow
        model: page.brands
        onOpened: name => page.show(name)
    }
    BrandsSkeleton {
        anchors { left: parent.left; right: parent.right; top: header.bottom; bottom: parent.bottom }
        padding: page.padding
        narrow: page.narrow
        shown: page.phase === BrandsModel.Loading
    }
    EmptyState {
        objectName: "noMatch"
        anchors { horizontalCenter: parent.horizontalCenter; top: header.bottom; topMargin: Theme.space8 }
        visible: page.phase === BrandsModel.Loaded && index.count === 0
        width: Math.min(parent.width, 480)
        iconName: "magnifyingglass"
        title: qsTranslate("Loomstreet", "No designers match “%1”").arg(page.brands ? page.brands.filter.trim() : "")
        sentence: qsTranslate("Loomstreet", "Check the spelling, or look through all of them.")

        PushButton {
            text: qsTranslate("Loomstreet", "Show all designers")
            onClicked: {
                page.clearFilter()
                header.takeFocus()
            }
        }
    }
    ErrorState {
        objectName: "error"
        anchors.centerIn: parent
        visible: page.phase === BrandsModel.Failed
        width: Math.min(parent.width, 480)
        sentence: page.brands?.errorText ?? ""
        takesFocus: page.shown
        onRetry: page.reload()
    }
    EmptyState {
        objectName: "empty"
        anchors.centerIn: parent
        visible: page.phase === BrandsModel.Empty
        width: Math.min(parent.width, 480)
        iconName: "signature"
        title: qsTranslate("Loomstreet", "Nothing here yet")
        sentence: qsTranslate("Loomstreet", "New pieces arrive every week.")

        PushButton {
            text: qsTranslate("Loomstreet", "Explore")
            onClicked: page.router.selectItem(0)
        }
    }
}
