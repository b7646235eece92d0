#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace loom
{

struct Lettering;

/// What is measured of a family, in parts of its size: its own letters, and the ascents of what stands in for them. A
/// line is as tall as its tallest font, so that without them the first baseline would lie elsewhere in every script.
struct TypeFace {
    const char* name;
    const char* family;
    /// How the families begin that some languages have instead, before the language's code.
    const char* languageFamily;
    double ascent;
    double descent;
    double hebrewAscent;
    double arabicAscent;
    double devanagariAscent;
    double thaiAscent;
    double hanAscent;
    double markAscent;
    double isolateAscent;
    double narrowSpaceAscent;
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

/// One style of type. `size` and `line` are what to use: they follow the shopper's text size and the language. Every
/// label reads most of this, so that it is C++, and its properties are final, for QML to compile. Owned by TypeScale.
class TypeStyle : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Styles of type come from Theme.type.")
    Q_PROPERTY(QString face READ face CONSTANT FINAL)
    Q_PROPERTY(QString family READ family NOTIFY changed FINAL)
    Q_PROPERTY(int weight READ weight CONSTANT FINAL)
    Q_PROPERTY(int size READ size NOTIFY changed FINAL)
    Q_PROPERTY(int line READ line NOTIFY changed FINAL)
    Q_PROPERTY(double tracking READ tracking NOTIFY changed FINAL)
    Q_PROPERTY(bool capitals READ capitals NOTIFY changed FINAL)
    // What to put above the first line of a text: the leading is shared evenly above and below the letters. Less the
    // `rise` of its scripts, the baseline is where it is in every other label of this style.
    Q_PROPERTY(double leading READ leading NOTIFY changed FINAL)
    // The same for a text that is centred in a height: Qt leaves the room out that a language adds to its lines.
    Q_PROPERTY(double centredLeading READ centredLeading NOTIFY changed FINAL)
    // Of the first line, from its top.
    Q_PROPERTY(double baseline READ baseline NOTIFY changed FINAL)

public:
    TypeStyle(const TypeTokens& tokens, QObject* parent);

    void apply(double factor, const Lettering& lettering);

    [[nodiscard]] QString face() const { return QString::fromLatin1(m_tokens.face->name); }
    [[nodiscard]] QString family() const { return m_family; }
    [[nodiscard]] int weight() const { return m_tokens.weight; }
    [[nodiscard]] int size() const { return m_size; }
    [[nodiscard]] int line() const { return m_line; }
    [[nodiscard]] double tracking() const { return m_tracking; }
    [[nodiscard]] bool capitals() const { return m_capitals; }
    [[nodiscard]] double leading() const;
    [[nodiscard]] double centredLeading() const { return m_centredLeading; }
    [[nodiscard]] double baseline() const { return leading() + m_tokens.face->ascent * m_size; }
    /// By how much letters of these `Scripts` raise a line above what the style's own do, in parts of the size.
    Q_INVOKABLE double rise(int scripts) const;

Q_SIGNALS:
    void changed();

private:
    TypeTokens m_tokens;
    int m_size;
    int m_line;
    QString m_family;
    double m_tracking;
    bool m_capitals;
    double m_centredLeading;
};

} // namespace loom
