#pragma once

#include <QString>

namespace loom
{

/// A short notice during a call: what became of something that Mira did.
struct MiraVoiceToast {
    enum class Kind {
        Added,    ///< to the cart; `subject`: the piece
        NotAdded, ///< to the cart
        Opening,  ///< `subject`: a page
        Hiccup,
    };

    Kind kind = Kind::Hiccup;
    QString subject; ///< empty where it is not known

    [[nodiscard]] bool isGood() const { return kind == Kind::Added || kind == Kind::Opening; }
    /// In the language of the window.
    [[nodiscard]] QString text() const;

    bool operator==(const MiraVoiceToast&) const = default;
};

} // namespace loom
