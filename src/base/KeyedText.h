#pragma once

#include <QCoreApplication>

namespace loom
{

/// A text of the window as it stands in a table: the English, and the localisation key where the text has one.
/// Written with QT_TRANSLATE_NOOP3("Loomstreet", english, key).
struct KeyedText {
    const char* english = nullptr;
    const char* key = nullptr;

    /// In the language of the window.
    [[nodiscard]] QString translated() const
    {
        return english ? QCoreApplication::translate("Loomstreet", english, key) : QString();
    }
};

} // namespace loom
