import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// Where a package is, by a number that the shopper types.
PageBase {
    id: page

    readonly property TrackingModel tracking: context.model
    readonly property int phase: tracking ? tracking.phase : TrackingModel.Idle
    property bool edited: false // since the last question

    title: qsTranslate("Loomstreet", "Track a package")
    settled: phase !== TrackingModel.Waiting
    flickable: flick

    function takeFocus(): void { field.forceActiveFocus() }
    function reload(): void { tracking.reload() }
    function search(): void {
        edited = false
        tracking.search(field.text)
    }

    OfflineStrip {
        id: strip

        objectName: "strip"
        width: parent.width
        offline: page.tracking?.isOffline ?? false
        canRetry: true
        visible: text !== ""
        text: page.tracking?.errorText ?? ""
        onRetry: page.tracking.reload()
    }
    Flickable {
        id: flick

        objectName: "flick"
        anchors { left: parent.left; right: parent.right; top: strip.visible ? strip.bottom : parent.top; bottom: parent.bottom }
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
                Accessible.role: Accessible.Heading
            }
            Item {
                width: parent.width
                height: field.height

                FieldInput {
                    id: field

                    objectName: "number"
                    width: Math.min(parent.width, 560)
                    label: qsTranslate("Loomstreet", "Package or order number")
                    message: qsTranslate("Loomstreet", "It stands in the e-mail that told you of the shipment.")
                    error: page.phase === TrackingModel.Missing && !page.edited
                           ? qsTranslate("Loomstreet", "We don't know this number. Check it, or try again tomorrow: a new package can take a day to be known.") : ""
                    text: page.tracking?.number ?? ""
                    inputMethodHints: Qt.ImhNoPredictiveText
                    maximumLength: 80
                    trailingRoom: find.width + Theme.space1
                    onEdited: page.edited = true
                    onAccepted: page.search()
                }
                PushButton {
                    id: find

                    objectName: "find"
                    // Beside the line that is typed in.
                    anchors { right: field.right; top: field.top; topMargin: Theme.type.label.line + 6 }
                    kind: "primary"
                    text: qsTranslate("Loomstreet", "Track")
                    busy: page.tracking?.isLoading ?? false
                    enabled: field.text.trim() !== ""
                    onClicked: page.search()
                }
            }
            PackageSkeleton {
                width: parent.width
                shown: page.phase === TrackingModel.Waiting
            }
            TrackedPackages {
                objectName: "result"
                width: parent.width
                tracking: page.tracking
                onOrderAsked: id => page.router.openOrder(id)
                onCarrierAsked: url => page.router.openLink(url)
            }
        }
    }
}
