#include "ui/theme/Fonts.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QQuickWindow>
#include <QStringList>

#include <array>
#include <clocale>

namespace loom
{

namespace
{

/// A language whose families stand on their own, and whose readers' forms of the letters that the East shares.
struct Readers {
    const char* language; ///< empty: all the others
    const char* han;
};

void addFiles()
{
    static constexpr std::array files{
        "LoomstreetFigures-Regular.otf", "LoomstreetFigures-Medium.otf", "LoomstreetFigures-SemiBold.otf",
        "LoomstreetDisplay-Regular.otf", "LoomstreetLanguages.ttc",
    };
    for (const char* file : files) {
        const QString path = QStringLiteral(":/loomstreet/fonts/") + QLatin1String(file);
        if (QFontDatabase::addApplicationFont(path) == -1)
            qWarning("The font %s could not be loaded; its substitute is used.", file);
    }
}

void standIn(const QString& family, const QStringList& others)
{
    QFont::removeSubstitutions(family);
    QFont::insertSubstitutions(family, others);
}

/// What a language's families lack, others draw. Devanagari comes first: a run of it tries each family in turn.
void addStandIns(const Readers& readers)
{
    const QLatin1String han(readers.han);
    const QStringList text{QStringLiteral("Noto Sans Devanagari"), QStringLiteral("Noto Sans CJK ") + han,
                           QStringLiteral("Noto Sans Arabic"),     QStringLiteral("Noto Sans Hebrew"),
                           QStringLiteral("Noto Sans Thai"),       QStringLiteral("Noto Sans")};
    const QStringList display{QStringLiteral("Noto Serif Devanagari"), QStringLiteral("Noto Serif CJK ") + han,
                              QStringLiteral("Noto Naskh Arabic"),     QStringLiteral("Noto Serif Hebrew"),
                              QStringLiteral("Noto Serif Thai"),       QStringLiteral("Noto Serif")};
    const QStringList inter{QStringLiteral("Inter")};
    const QStringList ownFigures{QStringLiteral("Loomstreet Figures")};
    const QStringList ownDisplay{QStringLiteral("Loomstreet Display")};
    const QLatin1String language(readers.language);
    if (language.isEmpty()) {
        standIn(inter.first(), text);
        standIn(ownFigures.first(), inter + text);
        // The family "EB Garamond" holds two cuts under one name, and which of them is found is chance. The derived
        // family is the sturdier one, drawn for small sizes: on a screen the other is too thin for a title.
        standIn(ownDisplay.first(), display + QStringList{QStringLiteral("EB Garamond")});
    } else {
        standIn(QStringLiteral("Loomstreet Text ") + language, inter + text);
        standIn(ownFigures.first() + u' ' + language, ownFigures + inter + text);
        standIn(ownDisplay.first() + u' ' + language, ownDisplay + display);
    }
}

/// HarfBuzz asks the C library, once and with the first text, which language's forms of letters it is to choose. None,
/// so that Japanese on a Chinese desktop looks Japanese: it is the family that chooses.
void keepDesktopLanguageOut()
{
    const QByteArray desktop = std::setlocale(LC_CTYPE, nullptr);
    std::setlocale(LC_CTYPE, "C");
    static_cast<void>(QFontMetricsF(QFont(QStringLiteral("Inter"))).horizontalAdvance(u'L'));
    std::setlocale(LC_CTYPE, desktop.constData());
}

} // namespace

void registerFonts()
{
    addFiles();
    for (const Readers& readers : {Readers{"", "SC"}, {"hi", "SC"}, {"ja", "JP"}, {"ko", "KR"}, {"zh-Hant", "TC"}})
        addStandIns(readers);
    keepDesktopLanguageOut();

    // Sharper at these sizes than what Qt Quick scales by itself, and a new letter costs a third as much.
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
}

} // namespace loom
