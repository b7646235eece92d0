#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace loom
{

/// What is measured of a family, in parts of its size: its own letters, and the ascents of what stands in for them. A
/// line is as tall as its tallest font, so that without them the first baseline would lie elsewhere in every script.
struct TypeFace {
    const char* name;
    const char* family;
    double ascent;
    double descent;
    double arabicAscent;
    double hanAscent;
};

/// A style as the design gives it, at 100 %.
struct TypeTokens {
    const TypeFace* face;
    int size;
    int line;
    int weight;
    double tracking = 0;
    bool capitals = false;
    /// Stays as it is in every script, as the house's name does.
    bool always = false;
};

/// One style of type. `size` and `line` are what to use: they follow the shopper's text size and the script. Every
/// label reads most of this, so that it is C++, and its properties are final, for QML to compile. Owned by TypeScale.
class TypeStyle : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Styles of type come from Theme.type.")
    Q_PROPERTY(QString face READ face CONSTANT FINAL)
    Q_PROPERTY(QString family READ family CONSTANT FINAL)
    Q_PROPERTY(int weight READ weight CONSTANT FINAL)
    Q_PROPERTY(int size READ size NOTIFY changed FINAL)
    Q_PROPERTY(int line READ line NOTIFY changed FINAL)
    Q_PROPERTY(double tracking READ tracking NOTIFY changed FINAL)
    Q_PROPERTY(bool capitals READ capitals NOTIFY changed FINAL)
    // What to put above the first line of a text, by its script: the leading is shared evenly above and below the
    // letters, and the baseline is where it is in every other label of this style.
    Q_PROPERTY(double leading READ leading NOTIFY changed FINAL)
    Q_PROPERTY(double arabicLeading READ arabicLeading NOTIFY changed FINAL)
    Q_PROPERTY(double hanLeading READ hanLeading NOTIFY changed FINAL)

public:
    TypeStyle(const TypeTokens& tokens, QObject* parent);

    void apply(double factor, bool arabicScript);

    [[nodiscard]] QString face() const { return QString::fromLatin1(m_tokens.face->name); }
    [[nodiscard]] QString family() const { return QString::fromLatin1(m_tokens.face->family); }
    [[nodiscard]] int weight() const { return m_tokens.weight; }
    [[nodiscard]] int size() const { return m_size; }
    [[nodiscard]] int line() const { return m_line; }
    [[nodiscard]] double tracking() const { return m_arabicScript ? 0 : m_tokens.tracking; }
    [[nodiscard]] bool capitals() const { return m_tokens.capitals && !m_arabicScript; }
    [[nodiscard]] double leading() const;
    [[nodiscard]] double arabicLeading() const;
    [[nodiscard]] double hanLeading() const;

Q_SIGNALS:
    void changed();

private:
    TypeTokens m_tokens;
    int m_size;
    int m_line;
    bool m_arabicScript = false;
};

} // namespace loom
