import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// News as it comes, in the window that is in front. How long it stays is for the centre of banners to say.
Toast {
    id: banner

    required property NotificationBannerCenter banners
    required property int windowNumber

    readonly property bool wanted: banners.current !== undefined && banners.windowNumber === windowNumber
    // As long as it leaves, it still says what it said.
    property var shown: undefined

    function follow(): void {
        if (wanted)
            shown = banners.current
        open = wanted
    }

    objectName: "notificationBanner"
    iconName: shown?.symbol ?? ""
    tone: shown?.type === "order" ? "success" : "plain"
    title: shown?.title ?? ""
    text: shown?.body ?? ""
    actionText: (shown?.link ?? "") !== "" || (shown?.isAboutSupport ?? false) || (shown?.isAboutUpdate ?? false) ? qsTranslate("Loomstreet", "Open") : ""

    onHeldChanged: {
        if (!wanted)
            return // another window shows it by now, and may hold it
        if (held && open)
            banners.hold()
        else
            banners.release()
    }
    onActivated: banners.open()
    onDismissed: banners.dismiss()
    Component.onCompleted: follow()

    Connections {
        target: banner.banners
        function onCurrentChanged(): void {
            banner.follow()
            if (banner.held && banner.open)
                banner.banners.hold()
        }
    }
}
