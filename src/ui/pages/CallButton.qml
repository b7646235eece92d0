import QtQuick
import Loomstreet.Components
import Loomstreet.Model

// Calls the stylist, or shows the call that is under way.
IconButton {
    id: button

    required property AppModel app
    // From beside a page: the call can go back there.
    property bool docked: false

    readonly property MiraVoiceSession call: app.call

    objectName: "callMira"
    iconName: "phone"
    on: call.isActive
    text: call.isActive ? qsTranslate("Loomstreet", "Show the call") : qsTranslate("Loomstreet", "Call %1").arg(app.mira.guideName)
    onClicked: {
        if (call.isPaused && !call.isActive)
            app.notifier.deliverUnavailable("miraVoice")
        else
            call.call(docked)
    }
}
