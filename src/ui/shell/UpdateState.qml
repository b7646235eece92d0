import QtQuick
import Loomstreet.Components
import Loomstreet.Model
import Loomstreet.Theme

// How far the application is with being kept current: what there is to say, and what one can do about it. Whoever
// cannot see it hears the outcomes at once, and how a download goes on by the way.
Column {
    id: state

    required property AppUpdater updater
    // In the settings, where there is room for more words and another button that checks.
    property bool roomy: false
    property real titleInset: 0 // what stands beside the title, at its end
    property int notesHeight: 180

    readonly property int phase: updater.phase
    readonly property bool downloads: phase === AppUpdater.Downloading
    readonly property bool turns: phase === AppUpdater.Checking || phase === AppUpdater.Verifying || phase === AppUpdater.Installing
    readonly property int percent: Math.floor(100 * Math.max(0, Math.min(1, updater.progress)))
    readonly property int quarter: downloads ? Math.floor(percent / 25) : 0
    // What is new is told until it is installed.
    readonly property bool describes: downloads || phase === AppUpdater.Idle || phase === AppUpdater.Verifying
                                      || (phase === AppUpdater.Ready && updater.action === AppUpdater.Relaunch)
    readonly property bool acts: updater.action !== AppUpdater.None && !(roomy && updater.action === AppUpdater.Check)
    readonly property bool heard: visible && Window.active

    signal skipped()
    // The button that has the keyboard is hidden.
    signal focusLost()

    function sentence(): string { return roomy ? updater.settingsText : updater.text }
    function takeFocus(): void {
        if (act.visible)
            act.forceActiveFocus(Qt.PopupFocusReason)
    }
    function tell(): void {
        if (!heard)
            return
        if (turns || downloads) {
            progress.stop()
            progress.say([updater.title])
        } else {
            progress.stop()
            outcome.stop()
            outcome.say([updater.title, sentence()])
        }
    }

    spacing: Theme.space2
    onPhaseChanged: tell()
    onQuarterChanged: if (heard && quarter > 0) progress.say([updater.title, meter.Accessible.description])

    Item {
        width: parent.width
        height: Math.max(sign.height, words.height)

        Accessible.role: Accessible.StaticText
        Accessible.name: words.title.text + (words.note.text === "" ? "" : ". " + words.note.text)

        Announcer { id: outcome }
        Announcer {
            id: progress

            polite: true
        }
        IconDisc {
            id: sign

            anchors.left: parent.left
            tone: state.phase === AppUpdater.Failed ? "danger"
                : state.phase === AppUpdater.UpToDate ? "success"
                : state.updater.selfUpdateFailed ? "warning"
                : state.turns || state.phase === AppUpdater.Idle && state.updater.version === "" ? "plain" : "accent"
            iconName: state.turns ? ""
                    : state.phase === AppUpdater.Failed || state.updater.selfUpdateFailed ? "warning"
                    : state.phase === AppUpdater.UpToDate || state.phase === AppUpdater.Ready ? "checkmark"
                    : state.phase === AppUpdater.Idle && state.updater.version === "" ? "arrow.clockwise" : "download"

            Spinner {
                anchors.centerIn: parent
                running: state.turns
                size: 20
                color: Theme.muted
            }
        }
        Column {
            id: words

            readonly property alias title: title
            readonly property alias note: note

            anchors { left: sign.right; leftMargin: Theme.space1_5; right: parent.right }
            spacing: Theme.spaceHalf

            TextLabel {
                id: title

                objectName: "updateTitle"
                anchors.left: parent.left
                width: parent.width - state.titleInset
                // A single line stands beside the middle of its sign.
                height: Math.max(implicitHeight, sign.height)
                verticalAlignment: Text.AlignVCenter
                text: state.updater.title
                type: state.roomy ? Theme.type.section : Theme.type.panel
                wrapMode: Text.Wrap
                maximumLineCount: 3
                Accessible.role: Accessible.Heading
            }
            TextLabel {
                id: note

                objectName: "updateText"
                width: parent.width
                visible: text !== ""
                text: state.sentence()
                type: Theme.type.small
                color: Theme.muted
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            TextLabel {
                objectName: "updateVersion"
                width: parent.width
                visible: state.updater.version !== "" && !state.updater.title.includes(state.updater.version)
                text: qsTranslate("Loomstreet", "Version %1").arg(Bidi.isolate(state.updater.version))
                type: Theme.type.caption
                figures: true
                color: Theme.muted
            }
        }
    }
    Item {
        width: parent.width
        height: figure.implicitHeight
        visible: state.downloads || state.phase === AppUpdater.Verifying

        Meter {
            id: meter

            objectName: "updateProgress"
            anchors { left: parent.left; right: figure.left; rightMargin: Theme.space1_5; verticalCenter: parent.verticalCenter }
            name: state.updater.title
            value: state.downloads ? state.updater.progress : 1
        }
        TextLabel {
            id: figure

            objectName: "percent"
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            width: Math.max(implicitWidth, Theme.space5)
            horizontalAlignment: Text.AlignRight
            text: Bidi.isolate((state.downloads ? state.percent : 100) + " %")
            type: Theme.type.caption
            figures: true
            color: Theme.muted
            Accessible.ignored: true
        }
    }
    Column {
        width: parent.width
        visible: notes.text !== "" && state.describes
        spacing: Theme.space1

        Hairline { width: parent.width }
        Overline {
            width: parent.width
            words: notes.name
            color: Theme.muted
            Accessible.role: Accessible.Heading
        }
        ScrollingText {
            id: notes

            objectName: "updateNotes"
            width: parent.width
            maximumHeight: state.notesHeight
            name: qsTranslate("Loomstreet", "What’s new")
            text: state.updater.notes
            type: Theme.type.small
        }
    }
    Flow {
        objectName: "actions"
        width: parent.width
        visible: state.acts || state.updater.canSkip
        spacing: Theme.space1

        PushButton {
            id: act

            objectName: "updateAction"
            focus: true
            visible: state.acts
            kind: state.phase === AppUpdater.UpToDate ? "secondary" : "primary"
            text: state.updater.actionText
            onClicked: state.updater.act()
            onVisibleChanged: if (activeFocus && !state.acts) state.focusLost()
            Accessible.description: state.sentence()
        }
        PushButton {
            id: skip

            objectName: "skipUpdate"
            visible: state.updater.canSkip
            text: qsTranslate("Loomstreet", "Skip This Version")
            onClicked: {
                state.updater.skipThisVersion()
                state.skipped()
            }
        }
    }
}
