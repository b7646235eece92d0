#pragma once

#include <QString>

namespace loom
{

/// What the letters of the window's language ask of the styles of type, which were drawn for Latin ones.
struct Lettering {
    const char* language;
    /// Has families of its own, whose stand-ins are those that its readers expect: see registerFonts().
    bool families = false;
    /// Has capitals, and letters that may be set apart.
    bool cases = true;
    /// What every line has more, at 100 %: for letters that reach far down.
    int extraLine = 0;
    /// The least height of a line in parts of the size, for marks above and below or for letters that fill their
    /// square.
    double textLine = 1;
    double displayLine = 1;
    /// The least size, at 100 %: letters of many strokes close up below it.
    int smallest = 0;
    /// Set apart by next to nothing, which keeps letters from being joined where an "i" would lose its dot.
    bool ligatures = true;
};

/// That of a language of the window, by its code; that of Latin for one that asks for nothing.
[[nodiscard]] const Lettering& letteringOf(const QString& language);

} // namespace loom
