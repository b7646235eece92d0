import QtQuick
import Loomstreet.Components

// Stands for an entry of the stack that no page recognises.
PageBase {
    id: page

    settled: true

    EmptyState {
        anchors.centerIn: parent
        width: Math.min(parent.width, 480)
        iconName: "info"
        title: qsTranslate("Loomstreet", "This page isn't available")
        sentence: qsTranslate("Loomstreet", "It may have moved, or come with another version.")

        PushButton {
            text: qsTranslate("Loomstreet", "Explore")
            onClicked: page.router.selectItem(0)
        }
    }
}
