#include "ui/theme/Fonts.h"

#include <QFont>
#include <QFontDatabase>
#include <QQuickWindow>
#include <QStringList>

#include <array>

namespace loom
{

void registerFonts()
{
    static constexpr std::array files{
        "LoomstreetFigures-Regular",
        "LoomstreetFigures-Medium",
        "LoomstreetFigures-SemiBold",
        "LoomstreetDisplay-Regular",
    };
    for (const char* file : files) {
        const QString path = QStringLiteral(":/loomstreet/fonts/%1.otf").arg(QLatin1String(file));
        if (QFontDatabase::addApplicationFont(path) == -1)
            qWarning("The font %s could not be loaded; its substitute is used.", file);
    }

    const QStringList text{QStringLiteral("Noto Sans"), QStringLiteral("Noto Sans Arabic"),
                           QStringLiteral("Noto Sans CJK SC")};
    const QStringList display{QStringLiteral("Noto Serif"), QStringLiteral("Noto Naskh Arabic"),
                              QStringLiteral("Noto Serif CJK SC")};
    const auto standIn = [](const QString& family, const QStringList& others) {
        QFont::removeSubstitutions(family);
        QFont::insertSubstitutions(family, others);
    };
    standIn(QStringLiteral("Inter"), text);
    standIn(QStringLiteral("Loomstreet Figures"), QStringList{QStringLiteral("Inter")} + text);
    // The family "EB Garamond" holds two cuts under one name, and which of them is found is chance. The derived family
    // is the sturdier one, drawn for small sizes: on a screen the other is too thin for a title.
    standIn(QStringLiteral("Loomstreet Display"), QStringList{QStringLiteral("EB Garamond")} + display);

    // Sharper at these sizes than what Qt Quick scales by itself, and a new letter costs a third as much.
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
}

} // namespace loom
