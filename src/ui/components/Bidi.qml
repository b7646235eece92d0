pragma Singleton
import QtQuick

// Runs that keep their own direction inside a text of the other one: prices, codes, sizes, "1 / 7".
QtObject {
    function isolate(text: string): string {
        return text === "" ? "" : "\u2068" + text + "\u2069"
    }
    // Facts on one line, those that there are, in the order of the window's language and not in that of the first one's
    // script.
    function joined(facts: var): string {
        const shown = facts.filter(fact => fact !== "")
        const turned = shown.length > 1 && Qt.locale().textDirection === Qt.RightToLeft
        return turned ? "\u200f" + shown.map(isolate).join("  ·  ") : shown.join("  ·  ")
    }
}
