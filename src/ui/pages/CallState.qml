import QtQml
import Loomstreet.Model

// What a call is at, in one word for those who draw it and in one for those who read.
QtObject {
    id: state

    required property MiraVoiceSession call

    readonly property int phase: call.phase
    readonly property string kind: {
        switch (phase) {
        case MiraVoicePhases.Connecting: return "connecting"
        case MiraVoicePhases.Thinking: return "thinking"
        case MiraVoicePhases.Speaking: return "speaking"
        case MiraVoicePhases.Listening: return call.isMuted ? "muted" : "listening"
        default: return "ended"
        }
    }
    readonly property string text: {
        switch (kind) {
        case "connecting": return qsTranslate("Loomstreet", "Calling…")
        case "thinking": return qsTranslate("Loomstreet", "Thinking")
        case "speaking": return qsTranslate("Loomstreet", "Speaking")
        case "muted": return qsTranslate("Loomstreet", "Muted")
        case "listening": return qsTranslate("Loomstreet", "Listening")
        default: return qsTranslate("Loomstreet", "Call ended")
        }
    }
    // The button that mutes, or takes that back.
    readonly property string muteIcon: call.isMuted ? "microphone.slash" : "microphone"
    readonly property string muteText: call.isMuted ? qsTranslate("Loomstreet", "Unmute") : qsTranslate("Loomstreet", "Mute")
    // Of whoever speaks.
    readonly property real level: kind === "speaking" ? call.playedLevel : kind === "listening" ? call.microphoneLevel : 0
    // Where there is one line for it: what has just happened, or what was said last.
    readonly property string line: call.toast !== "" ? call.toast : call.transcript.lastText
}
