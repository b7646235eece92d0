#pragma once

#include "base/KeyedText.h"

#include <QRegularExpression>
#include <QStringList>

#include <array>
#include <optional>

namespace loom
{

struct MiraMessage;

/// The fixed texts of the stylist's chat, and what its messages mean: pure, and linear in the text. Any thread.
class MiraRules
{
public:
    // What the chat says.
    static constexpr KeyedText unconfirmed{
        QT_TRANSLATE_NOOP("Loomstreet", "This message has not been confirmed. You can try again.")};
    static constexpr KeyedText upToDate{QT_TRANSLATE_NOOP("Loomstreet", "Conversation is up to date")};
    static constexpr KeyedText replying{QT_TRANSLATE_NOOP("Loomstreet", "Mira is replying")};
    static constexpr KeyedText replyingToQueued{
        QT_TRANSLATE_NOOP("Loomstreet", "Mira is replying. You can send these in a moment.")};
    static constexpr KeyedText topicsNote{
        QT_TRANSLATE_NOOP("Loomstreet", "Topics are saved on this Mac. Mira keeps your shared conversation memory.")};

    // What the shopper can begin with.
    static constexpr std::array<KeyedText, 3> prompts{{{QT_TRANSLATE_NOOP("Loomstreet", "What should I wear today?")},
                                                       {QT_TRANSLATE_NOOP("Loomstreet", "Help me find something")},
                                                       {QT_TRANSLATE_NOOP("Loomstreet", "Where is my order?")}}};
    static constexpr std::array<KeyedText, 2> morePrompts{{{QT_TRANSLATE_NOOP("Loomstreet", "Style me from my closet")},
                                                           {QT_TRANSLATE_NOOP("Loomstreet", "What to wear tonight")}}};
    /// "Help me style this: " and the name of the piece.
    [[nodiscard]] static QString stylePrompt(const QString& pieceName);

    /// Whether `text` can be the handle of a piece or a collection: no longer than any, and nothing in it would part
    /// a path.
    [[nodiscard]] static bool isHandle(const QString& text);
    /// More links than this in one message are not looked at.
    static constexpr qsizetype maximumLinks = 100;

    /// A message as its bubble shows it: the shopper's without the context that the application added, without lines
    /// that are only the path of a product, and with at most one empty line in a row. No control characters and no
    /// characters that turn the writing direction around.
    [[nodiscard]] static QString shownText(const MiraMessage& message);
    /// The shopper's words and the path of the attached product, without what the application added behind them.
    [[nodiscard]] static QString withoutContext(const QString& body);
    /// The products that a message links to, in order, each once; context counts for nothing.
    [[nodiscard]] static QStringList productHandles(const MiraMessage& message);
    /// Whether a reply wants to know the shopper's measurements, and the sheet for them should be offered.
    [[nodiscard]] static bool asksForMeasurements(const QString& text);
    [[nodiscard]] static bool speaksOfMeasurements(const QString& text);

    /// The sum that an attachment's price stands for, in US dollars; none where it is words.
    [[nodiscard]] static std::optional<double> dollars(const QString& price);
    /// The code of the language to reply in: the preference's, or the window's where it says "auto" or nothing known.
    [[nodiscard]] static QString replyLanguage(const QString& preference, const QString& windowLanguage);

    /// The pattern, ready for use; one that cannot be compiled is replaced by one that matches nothing.
    [[nodiscard]] static QRegularExpression
    compiled(const QString& pattern, QRegularExpression::PatternOptions options = QRegularExpression::NoPatternOption);
};

} // namespace loom
