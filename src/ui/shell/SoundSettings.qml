import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// What a call is heard with and spoken into. Devices are watched, and the microphone is listened to, only while the
// page is looked at.
SettingsPage {
    id: page

    required property AppModel app
    property bool shown: true

    property VoiceDevicesModel devices: null
    property QtObject owner: null

    function choicesOf(list: var): var {
        return (list ?? []).map(device => ({ value: device.id, title: device.name, note: "" }))
    }
    function follow(): void {
        if (shown && !devices) {
            owner = ownerOfModel.createObject(page)
            devices = app.makeVoiceDevices(owner)
        } else if (!shown && devices) {
            devices.stopMeasuring()
            devices = null
            owner.destroy()
        }
    }

    title: qsTranslate("Loomstreet", "Sound")
    onShownChanged: follow()
    Component.onCompleted: follow()

    Component {
        id: ownerOfModel

        QtObject {}
    }
    SettingsChoice {
        objectName: "microphones"
        width: page.width
        title: qsTranslate("Loomstreet", "Microphone")
        value: page.devices?.microphone ?? ""
        choices: page.choicesOf(page.devices?.microphones)
        onChosen: value => page.devices.microphone = value
    }
    Column {
        width: page.width
        spacing: Theme.space1

        Item {
            width: parent.width
            height: Math.max(start.height, meter.height)

            PushButton {
                id: start

                objectName: "measure"
                anchors.left: parent.left
                size: "small"
                iconName: page.devices?.isMeasuring ? "pause" : "microphone"
                text: page.devices?.isMeasuring ? qsTranslate("Loomstreet", "Stop") : qsTranslate("Loomstreet", "Try it")
                accessibleName: page.devices?.isMeasuring ? qsTranslate("Loomstreet", "Stop listening to the microphone")
                                                          : qsTranslate("Loomstreet", "Try the microphone")
                enabled: !page.app.call.isActive
                onClicked: page.devices.isMeasuring ? page.devices.stopMeasuring() : page.devices.startMeasuring()
            }
            Meter {
                id: meter

                objectName: "level"
                anchors { left: start.right; leftMargin: Theme.space2; right: parent.right; verticalCenter: parent.verticalCenter }
                height: 8
                name: qsTranslate("Loomstreet", "Loudness")
                value: page.devices?.isMeasuring ? page.devices.level : 0
            }
        }
        TextLabel {
            objectName: "measureNote"
            width: parent.width
            readonly property string failure: page.devices?.failure ?? ""
            text: failure !== "" ? failure
                : page.app.call.isActive ? qsTranslate("Loomstreet", "It is in use for the call.")
                : page.devices?.isMeasuring ? qsTranslate("Loomstreet", "Say something: the bar follows your voice. Nothing leaves this computer.")
                                            : qsTranslate("Loomstreet", "Shows how loud you are. Nothing leaves this computer.")
            type: Theme.type.caption
            color: failure !== "" ? Theme.danger : Theme.muted
            wrapMode: Text.Wrap
            Accessible.role: failure !== "" ? Accessible.AlertMessage : Accessible.StaticText
        }
    }
    SettingsChoice {
        objectName: "speakers"
        width: page.width
        title: qsTranslate("Loomstreet", "Loudspeaker")
        value: page.devices?.speaker ?? ""
        choices: page.choicesOf(page.devices?.speakers)
        onChosen: value => page.devices.speaker = value
    }
    TextLabel {
        objectName: "muteKey"
        width: page.width
        readonly property string key: page.app.call.muteKeyText
        text: key !== "" ? qsTranslate("Loomstreet", "%1 mutes the microphone from wherever you are, for as long as a call lasts.").arg(Bidi.isolate(key))
                         : qsTranslate("Loomstreet", "M mutes the microphone in the window of a call.")
        type: Theme.type.caption
        color: Theme.muted
        wrapMode: Text.Wrap
    }
}
