#pragma once

#include <QTranslator>

namespace loom
{

/// Writes a text as no language does, but readable: accented, 40 % longer and between brackets. What a number or
/// another text is put in the place of, tags, and blanks at the ends stay as they are.
[[nodiscard]] QString pseudoText(const QString& text);

/// A language for those who make the window: what is plain in it is not translated, what is cut has too little room.
/// Texts are looked up on any thread.
class PseudoTranslator final : public QTranslator
{
    Q_OBJECT

public:
    /// `english` knows what depends on a number; it outlives this.
    explicit PseudoTranslator(const QTranslator& english, QObject* parent = nullptr);

    [[nodiscard]] QString translate(const char* context, const char* sourceText, const char* disambiguation = nullptr,
                                    int n = -1) const override;
    [[nodiscard]] bool isEmpty() const override { return false; }

private:
    const QTranslator& m_english;
};

} // namespace loom
