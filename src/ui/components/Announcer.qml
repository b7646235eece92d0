import QtQuick

// Tells assistive tools what has arrived, sentence by sentence, so that the reader can be stopped after any of them.
// It shows nothing and takes no focus.
Item {
    id: announcer

    property string sentence
    property var waiting: []
    // What need not interrupt whatever else is being said.
    property bool polite: false

    // How long a sentence is left to be heard, in milliseconds: a reader says some fifteen letters a second.
    readonly property int pace: Math.max(900, Math.min(8000, sentence.length * 66))
    readonly property int most: 100

    function say(sentences: var): void {
        waiting = waiting.concat(Array.from(sentences).filter(text => text !== "")).slice(0, most)
        if (!turn.running)
            next()
    }
    function stop(): void {
        turn.stop()
        waiting = []
        sentence = ""
    }
    function next(): void {
        if (waiting.length === 0) {
            sentence = ""
            return
        }
        const [first, ...rest] = waiting
        // The same again would be no change, and not said.
        if (first === sentence)
            sentence = ""
        waiting = rest
        sentence = first
        turn.start()
    }

    width: 1
    height: 1

    Accessible.role: polite ? Accessible.StatusBar : Accessible.AlertMessage
    Accessible.name: sentence

    Timer {
        id: turn

        interval: announcer.pace
        onTriggered: announcer.next()
    }
}
