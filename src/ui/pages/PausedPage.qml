import QtQuick
import Loomstreet.Components

// Stands in the place of a page whose feature the store has switched off, until it is on again.
PageBase {
    id: page

    function tell(): void {
        if (shown)
            app.notifier.deliverUnavailable(context.entry.handle)
    }

    settled: true
    onShownChanged: tell()
    Component.onCompleted: tell()

    EmptyState {
        objectName: "paused"
        anchors.centerIn: parent
        width: Math.min(parent.width, 480)
        iconName: "pause"
        title: qsTranslate("Loomstreet", "Temporarily unavailable")
        sentence: qsTranslate("Loomstreet", "This feature is paused for now. Please try again later.")

        PushButton {
            text: qsTranslate("Loomstreet", "Explore")
            onClicked: page.router.selectItem(0)
        }
    }
}
