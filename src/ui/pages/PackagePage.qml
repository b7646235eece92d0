import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// One package on its way.
PageBase {
    id: page

    readonly property TrackingModel tracking: context.model
    readonly property int phase: tracking ? tracking.phase : TrackingModel.Waiting
    readonly property bool found: phase === TrackingModel.Found
    readonly property string number: context.entry?.handle ?? ""

    title: qsTranslate("Loomstreet", "Package %1").arg(number)
    settled: phase !== TrackingModel.Waiting
    flickable: flick

    function takeFocus(): void { (phase === TrackingModel.Missing ? missing : flick).forceActiveFocus() }
    function reload(): void { tracking.reload() }

    OfflineStrip {
        id: strip

        objectName: "strip"
        width: parent.width
        offline: page.tracking?.isOffline ?? false
        canRetry: true
        visible: page.found && text !== ""
        text: page.tracking?.errorText ?? ""
        onRetry: page.tracking.reload()
    }
    Flickable {
        id: flick

        objectName: "flick"
        anchors { left: parent.left; right: parent.right; top: strip.visible ? strip.bottom : parent.top; bottom: parent.bottom }
        visible: page.found || page.phase === TrackingModel.Waiting
        focus: true
        contentHeight: column.height + Theme.space3 + Theme.space8
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        ScrollBar.vertical: ScrollBar {}

        FocusFollower { flickable: flick }

        Column {
            id: column

            anchors { left: parent.left; leftMargin: page.padding }
            y: Theme.space3
            width: Math.min(page.width - 2 * page.padding, Theme.layoutReadingMeasure)
            spacing: Theme.space3

            TextLabel {
                objectName: "title"
                width: parent.width
                text: page.title
                type: page.narrow ? Theme.type.heading : Theme.type.title
                wrapMode: Text.Wrap
                maximumLineCount: 2
                Accessible.role: Accessible.Heading
            }
            PackageSkeleton {
                width: parent.width
                shown: page.phase === TrackingModel.Waiting
            }
            TrackedPackages {
                width: parent.width
                tracking: page.tracking
                onOrderAsked: id => page.router.openOrder(id)
                onCarrierAsked: url => page.router.openLink(url)
            }
        }
    }
    EmptyState {
        id: missing

        objectName: "missing"
        anchors.centerIn: parent
        visible: page.phase === TrackingModel.Missing || page.phase === TrackingModel.Idle
        width: Math.min(parent.width, 480)
        iconName: "shippingbox"
        title: qsTranslate("Loomstreet", "Nobody knows this number yet")
        sentence: qsTranslate("Loomstreet", "A new package can take a day to be known to its carrier.")

        PushButton {
            objectName: "again"
            focus: true
            text: qsTranslate("Loomstreet", "Try again")
            busy: page.tracking?.isLoading ?? false
            onClicked: page.tracking.reload()
        }
        PushButton {
            objectName: "track"
            text: qsTranslate("Loomstreet", "Track a package")
            onClicked: page.router.openTracking()
        }
    }
    ErrorState {
        objectName: "error"
        anchors.centerIn: parent
        visible: page.phase === TrackingModel.Failed
        width: Math.min(parent.width, 480)
        sentence: page.tracking?.errorText ?? ""
        takesFocus: page.shown
        onRetry: page.tracking.reload()
    }
}
