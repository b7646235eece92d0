#include "catalog/DescriptionSections.h"

#include "catalog/DisplayText.h"
#include "catalog/HtmlEntities.h"
#include "catalog/HtmlScanner.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace loom
{

namespace
{

constexpr qsizetype maximumLength = 262'144;
constexpr qsizetype maximumLine = 8000;
constexpr int maximumLines = 500;

using Kind = HtmlToken::Kind;

/// Tags that end a line, opening or closing.
bool breaksLine(const QString& name)
{
    static const QSet<QString> names = [] {
        const QString list = QStringLiteral("address article aside blockquote body br caption center dd details div dl "
                                            "dt figcaption figure footer form h1 h2 h3 h4 h5 h6 header hr html li main "
                                            "nav ol option p pre section summary table tbody tfoot thead tr ul");
        const QStringList parts = list.split(u' ');
        return QSet<QString>(parts.cbegin(), parts.cend());
    }();
    return names.contains(name);
}

class SectionBuilder
{
public:
    explicit SectionBuilder(std::vector<HtmlToken> tokens)
        : m_tokens(std::move(tokens))
    {
    }

    QList<DescriptionSection> build()
    {
        const bool hasTags = std::ranges::any_of(m_tokens, [](const auto& token) { return token.kind != Kind::Text; });
        const std::ptrdiff_t lastHeading = lastClosing(QStringLiteral("h3"));
        const std::ptrdiff_t lastDetails = lastClosing(QStringLiteral("details"));
        for (std::ptrdiff_t i = 0; const HtmlToken& token : m_tokens) {
            if (token.kind == Kind::Text && hasTags)
                m_line += decodedEntities(token.content);
            else if (token.kind == Kind::Text)
                takePlainText(token.content);
            else if (token.kind == Kind::Closing)
                close(token.content);
            else if (token.content == QLatin1String("h3") && i < lastHeading && !m_inDetails)
                begin(Place::Title);
            else if (token.content == QLatin1String("details") && i < lastDetails && !m_inDetails)
                begin(Place::Details);
            else
                open(token.content);
            ++i;
        }
        begin(Place::Body);
        return std::move(m_sections);
    }

private:
    /// Where the line that is being read belongs.
    enum class Place { Body, Title, Details, Summary };

    [[nodiscard]] std::ptrdiff_t lastClosing(const QString& name) const
    {
        const auto found = std::find(m_tokens.crbegin(), m_tokens.crend(), HtmlToken{Kind::Closing, name});
        return m_tokens.crend() - found - 1;
    }

    void takePlainText(const QString& text)
    {
        const QStringList lines = text.split(u'\n');
        m_line += decodedEntities(lines.first());
        for (const QString& line : lines.mid(1)) {
            endLine();
            m_line = decodedEntities(line);
        }
    }

    void open(const QString& name)
    {
        if (name == QLatin1String("td") || name == QLatin1String("th"))
            m_line += u' ';
        if (!breaksLine(name))
            return;
        endLine();
        const bool isForgotten = name != QLatin1String("br") && !m_current.title.isEmpty();
        if (isForgotten && (m_place == Place::Title || m_place == Place::Summary))
            endTitle();
        if (name == QLatin1String("summary") && m_place == Place::Details && m_current.title.isEmpty())
            m_place = Place::Summary;
        if (name == QLatin1String("li"))
            m_isItem = true;
    }

    void close(const QString& name)
    {
        if (!breaksLine(name))
            return;
        endLine();
        if (name == QLatin1String("details") && m_inDetails)
            begin(Place::Body);
        if ((name == QLatin1String("h3") && m_place == Place::Title) ||
            (name == QLatin1String("summary") && m_place == Place::Summary))
            endTitle();
        if (name == QLatin1String("li"))
            m_isItem = false;
    }

    void endTitle() { m_place = m_inDetails ? Place::Details : Place::Body; }

    void begin(Place place)
    {
        endLine();
        m_current.isCollapsible = m_inDetails && !m_current.title.isEmpty() && !m_current.paragraphs.isEmpty();
        if (!m_current.title.isEmpty() || !m_current.paragraphs.isEmpty())
            m_sections.append(std::exchange(m_current, {}));
        m_place = place;
        m_inDetails = place == Place::Details;
        m_isItem = false;
    }

    void endLine()
    {
        static const QRegularExpression finalSale(QStringLiteral(R"(^\s*final sale:\s*)"),
                                                  QRegularExpression::CaseInsensitiveOption);
        QString line = displayLine(std::exchange(m_line, {}), maximumLine);
        line.remove(finalSale);
        if (line.isEmpty() || ++m_lines > maximumLines)
            return;
        if (m_place == Place::Title || m_place == Place::Summary)
            m_current.title += m_current.title.isEmpty() ? line : u' ' + line;
        else
            m_current.paragraphs.append(std::exchange(m_isItem, false) ? QStringLiteral("• ") + line : line);
    }

    std::vector<HtmlToken> m_tokens;
    QList<DescriptionSection> m_sections;
    DescriptionSection m_current;
    QString m_line;
    Place m_place = Place::Body;
    bool m_inDetails = false;
    bool m_isItem = false; ///< the next line is the first of a list item
    int m_lines = 0;
};

} // namespace

QList<DescriptionSection> descriptionSections(const QString& html)
{
    return SectionBuilder(scanHtml(QStringView(html).left(maximumLength))).build();
}

} // namespace loom
