#pragma once

#include "ui/theme/TypeStyle.h"

#include <QBasicTimer>
#include <QList>
#include <QString>

namespace loom
{

/// Garamond for titles, in the lining figures of the derived family.
inline constexpr TypeFace displayFace{.name = "display",
                                      .family = "Loomstreet Display",
                                      .languageFamily = "Loomstreet Display ",
                                      .ascent = 0.726,
                                      .descent = 0.274,
                                      .hebrewAscent = 0.896,
                                      .arabicAscent = 1.069,
                                      .devanagariAscent = 0.93,
                                      .thaiAscent = 1.064,
                                      .hanAscent = 1.151,
                                      .markAscent = 0.726,
                                      .isolateAscent = 1.069,
                                      .narrowSpaceAscent = 1.069};
/// Inter for everything else.
inline constexpr TypeFace textFace{.name = "text",
                                   .family = "Inter",
                                   .languageFamily = "Loomstreet Text ",
                                   .ascent = 0.96875,
                                   .descent = 0.2415,
                                   .hebrewAscent = 1.068,
                                   .arabicAscent = 1.374,
                                   .devanagariAscent = 0.96875,
                                   .thaiAscent = 1.061,
                                   .hanAscent = 1.16,
                                   .markAscent = 1.374,
                                   .isolateAscent = 1.069,
                                   .narrowSpaceAscent = 0.96875};

/// All styles of type: `Theme.type`. Garamond never below 18 and never bold.
class TypeScale : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double factor READ factor WRITE setFactor NOTIFY changed FINAL)
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString figuresFamily READ figuresFamily NOTIFY languageChanged FINAL)
    Q_PROPERTY(loom::TypeStyle* hero MEMBER m_hero CONSTANT FINAL)
    Q_PROPERTY(loom::TypeStyle* title MEMBER m_title CONSTANT FINAL)
    Q_PROPERTY(loom::TypeStyle* heading MEMBER m_heading CONSTANT FINAL)
    Q_PROPERTY(loom::TypeStyle* section MEMBER m_section CONSTANT FINAL)
    Q_PROPERTY(loom::TypeStyle* panel MEMBER m_panel CONSTANT FINAL)
    Q_PROPERTY(loom::TypeStyle* spoken MEMBER m_spoken CONSTANT FINAL)
    Q_PROPERTY(loom::TypeStyle* spokenBefore MEMBER m_spokenBefore CONSTANT FINAL)
    Q_PROPERTY(loom::TypeStyle* wordmark MEMBER m_wordmark CONSTANT FINAL)
    Q_PROPERTY(loom::TypeStyle* body MEMBER m_body CONSTANT FINAL)
    Q_PROPERTY(loom::TypeStyle* bodyStrong MEMBER m_bodyStrong CONSTANT FINAL)
    Q_PROPERTY(loom::TypeStyle* control MEMBER m_control CONSTANT FINAL)
    Q_PROPERTY(loom::TypeStyle* label MEMBER m_label CONSTANT FINAL)
    Q_PROPERTY(loom::TypeStyle* small MEMBER m_small CONSTANT FINAL)
    Q_PROPERTY(loom::TypeStyle* caption MEMBER m_caption CONSTANT FINAL)
    Q_PROPERTY(loom::TypeStyle* captionStrong MEMBER m_captionStrong CONSTANT FINAL)
    Q_PROPERTY(loom::TypeStyle* overline MEMBER m_overline CONSTANT FINAL)
    Q_PROPERTY(loom::TypeStyle* badge MEMBER m_badge CONSTANT FINAL)
    Q_PROPERTY(loom::TypeStyle* price MEMBER m_price CONSTANT FINAL)
    Q_PROPERTY(loom::TypeStyle* priceLarge MEMBER m_priceLarge CONSTANT FINAL)
    Q_PROPERTY(loom::TypeStyle* total MEMBER m_total CONSTANT FINAL)

public:
    using QObject::QObject;

    [[nodiscard]] double factor() const { return m_factor; }
    void setFactor(double factor);
    /// That of the window, by its code: its letters ask for other lines, families and sizes. Where many labels stand,
    /// the styles follow over the next turns of the event loop.
    [[nodiscard]] QString language() const { return m_language; }
    void setLanguage(const QString& language);
    /// The family whose figures are all equally wide.
    [[nodiscard]] QString figuresFamily() const;

Q_SIGNALS:
    void changed();
    void languageChanged();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    TypeStyle* style(const TypeTokens& tokens);
    void applyForAWhile();

    double m_factor = 1;
    QString m_language;
    QList<TypeStyle*> m_styles;
    QList<TypeStyle*> m_waiting; ///< the last is next
    QBasicTimer m_next;
    TypeStyle* m_hero = style({.face = &displayFace, .size = 56, .line = 60, .weight = 400, .tracking = -0.01});
    TypeStyle* m_title = style({.face = &displayFace, .size = 40, .line = 44, .weight = 400, .tracking = -0.005});
    TypeStyle* m_heading = style({.face = &displayFace, .size = 30, .line = 36, .weight = 400});
    TypeStyle* m_section = style({.face = &displayFace, .size = 24, .line = 30, .weight = 400});
    TypeStyle* m_panel = style({.face = &displayFace, .size = 22, .line = 28, .weight = 500});
    TypeStyle* m_spoken = style({.face = &displayFace, .size = 20, .line = 27, .weight = 400});
    TypeStyle* m_spokenBefore = style({.face = &displayFace, .size = 18, .line = 25, .weight = 400});
    TypeStyle* m_wordmark = style({.face = &displayFace,
                                   .size = 19,
                                   .line = 24,
                                   .weight = 500,
                                   .tracking = 0.16,
                                   .capitals = true,
                                   .always = true});
    TypeStyle* m_body = style({.face = &textFace, .size = 14, .line = 21, .weight = 400});
    TypeStyle* m_bodyStrong = style({.face = &textFace, .size = 14, .line = 21, .weight = 600});
    TypeStyle* m_control = style({.face = &textFace, .size = 14, .line = 20, .weight = 500});
    TypeStyle* m_label = style({.face = &textFace, .size = 13, .line = 18, .weight = 500});
    TypeStyle* m_small = style({.face = &textFace, .size = 13, .line = 18, .weight = 400});
    TypeStyle* m_caption = style({.face = &textFace, .size = 12, .line = 16, .weight = 400});
    TypeStyle* m_captionStrong = style({.face = &textFace, .size = 12, .line = 16, .weight = 600});
    TypeStyle* m_overline =
        style({.face = &textFace, .size = 11, .line = 16, .weight = 600, .tracking = 0.08, .capitals = true});
    TypeStyle* m_badge = style({.face = &textFace, .size = 11, .line = 14, .weight = 600});
    TypeStyle* m_price = style({.face = &textFace, .size = 14, .line = 20, .weight = 500});
    TypeStyle* m_priceLarge = style({.face = &textFace, .size = 20, .line = 26, .weight = 500});
    TypeStyle* m_total = style({.face = &textFace, .size = 18, .line = 24, .weight = 600});
};

} // namespace loom
