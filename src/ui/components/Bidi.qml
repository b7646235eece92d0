pragma Singleton
import QtQml

// Runs that keep their own direction inside a text of the other one: prices, codes, sizes, "1 / 7".
QtObject {
    function isolate(text: string): string {
        return text === "" ? "" : "\u2068" + text + "\u2069"
    }
}
