import QtQuick
import Loomstreet.Model
import Loomstreet.Shell
import Loomstreet.Theme

// The call in a window of its own: large, as a pill, or only her picture. It goes where the call goes, and keeps the
// corner at the top and end of the line in its place while it changes its form.
Window {
    id: window

    required property AppModel app
    required property SystemAppearance systemAppearance

    readonly property MiraVoiceSession call: app.call
    readonly property int mode: call.mode
    readonly property bool full: mode === MiraVoicePhases.Full
    readonly property bool floating: mode === MiraVoicePhases.Floating
    readonly property bool calling: call.isActive
    readonly property size leastFull: Qt.size(340, 440)
    // As the shopper made it.
    property size fullSize: Qt.size(Theme.layoutVoiceFull.width * grown, Theme.layoutVoiceFull.height)
    // With larger text.
    readonly property real grown: 1 + (Theme.textScale - 1) * 0.4
    property bool fitting: false

    function applyStyle(): void {}
    function sizeOf(mode: int): size {
        switch (mode) {
        case MiraVoicePhases.Full:
            return Qt.size(Math.min(fullSize.width, Screen.width), Math.min(fullSize.height, Screen.height - Theme.space6))
        case MiraVoicePhases.Mini:
            return Qt.size(Theme.layoutVoiceMini.width * grown, Math.max(Theme.layoutVoiceMini.height, 46 * Theme.textScale + Theme.space2))
        default:
            return Theme.layoutVoiceFloating
        }
    }
    // From the corner at the top and the right, and all of it on the screen.
    function take(right: int, top: int): void {
        const wanted = sizeOf(mode)
        const full = mode === MiraVoicePhases.Full // asked while the mode changes
        fitting = true
        minimumWidth = full ? leastFull.width : wanted.width
        minimumHeight = full ? leastFull.height : wanted.height
        maximumWidth = full ? 16777215 : wanted.width
        maximumHeight = full ? 16777215 : wanted.height
        const left = Screen.virtualX
        const above = Screen.virtualY
        x = Math.max(left, Math.min(right - wanted.width, left + Screen.width - wanted.width))
        y = Math.max(above, Math.min(top, above + Screen.height - wanted.height))
        width = wanted.width
        height = wanted.height
        fitting = false
    }
    function keepSize(): void {
        if (full && !fitting && width >= leastFull.width && height >= leastFull.height)
            fullSize = Qt.size(width, height)
    }
    function openPiece(card: var, mode: int): void {
        app.frontSession().selected.openPiece(card.handle, card.item, mode)
        app.showPages()
    }
    // What nobody sees is not there, and moves nothing.
    function present(): void {
        if (!visible) {
            form.source = ""
            return
        }
        const forms = { [MiraVoicePhases.Full]: "CallFull.qml", [MiraVoicePhases.Mini]: "CallMini.qml", [MiraVoicePhases.Floating]: "CallFloating.qml" }
        form.setSource(forms[mode], { call: call, window: window })
        form.made.forceActiveFocus()
    }

    objectName: "callWindow"
    flags: full ? Qt.Window | Qt.FramelessWindowHint : Qt.Window | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
    title: qsTranslate("Loomstreet", "Call with %1 – LOOMSTREET").arg(call.guideName)
    color: "transparent"
    LayoutMirroring.enabled: systemAppearance.isRightToLeft
    LayoutMirroring.childrenInherit: true

    Component.onCompleted: take(Screen.virtualX + Screen.width - Theme.space4, Screen.virtualY + Theme.space10)
    onModeChanged: {
        take(x + width, y)
        present()
    }
    onGrownChanged: take(x + width, y)
    onWidthChanged: keepSize()
    onHeightChanged: keepSize()
    onVisibleChanged: {
        compositing.look()
        present()
    }
    onClosing: call.closeWindow()
    onCallingChanged: if (!calling) over.start()

    Connections {
        target: window.call
        function onModeChanged(): void {
            if (!window.call.isWindowShown)
                window.hide()
        }
    }
    // What is left of a call needs room, unless nothing is to be said about it. Asked when all of the call is told.
    Timer {
        id: over

        interval: 0
        onTriggered: {
            if (window.calling || window.full)
                return
            if (window.call.failure === "")
                window.call.dismiss()
            else if (window.floating)
                window.call.mode = MiraVoicePhases.Mini
        }
    }
    ThemeInputs {
        settings: window.app.settings
        system: window.systemAppearance
    }
    DesktopCompositing {
        id: compositing
    }
    Shortcut {
        sequence: "M"
        enabled: window.calling
        autoRepeat: false
        onActivated: window.call.toggleMute()
    }
    Shortcut {
        sequence: "Ctrl+Shift+H"
        enabled: window.calling
        onActivated: window.call.hangUp()
    }
    // Smaller each time; when it is over, away.
    Shortcut {
        sequence: "Esc"
        enabled: !window.floating
        onActivated: {
            if (window.calling)
                window.call.mode = window.full ? MiraVoicePhases.Mini : MiraVoicePhases.Floating
            else
                window.close()
        }
    }
    Shortcut {
        sequence: "Ctrl+W"
        onActivated: window.close()
    }
    Shortcut {
        sequence: "Ctrl+Q"
        onActivated: window.app.quitRequested()
    }

    Rectangle {
        anchors.fill: parent
        radius: !compositing.isOn ? 0 : window.full ? Theme.radiusWindow : height / 2
        color: Theme.surface
        border { width: Theme.strokeHairline; color: Theme.hairline }
    }
    Loader {
        id: form

        readonly property var made: item

        anchors.fill: parent
        focus: true
    }
    ResizeEdges {
        anchors.fill: parent
        window: window
        enabled: window.full
    }
}
