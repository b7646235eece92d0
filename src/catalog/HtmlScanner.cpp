#include "catalog/HtmlScanner.h"

#include <QStringList>

namespace loom
{

namespace
{

bool isLetter(QChar character)
{
    const char16_t code = character.unicode();
    return (code >= u'a' && code <= u'z') || (code >= u'A' && code <= u'Z');
}

bool endsName(QChar character)
{
    return character.isSpace() || character == u'/' || character == u'>';
}

/// Elements whose content is no text of the page.
bool hidesContent(const QString& name)
{
    static const QStringList names{QStringLiteral("iframe"), QStringLiteral("noscript"), QStringLiteral("script"),
                                   QStringLiteral("style"),  QStringLiteral("template"), QStringLiteral("title")};
    return names.contains(name);
}

class HtmlScanner
{
public:
    explicit HtmlScanner(QStringView html)
        : m_html(html)
    {
    }

    std::vector<HtmlToken> scan()
    {
        while (m_position < m_html.size()) {
            if (m_html[m_position] == u'<' && m_position + 1 < m_html.size())
                takeMarkup(m_html[m_position + 1]);
            else
                takeText();
        }
        return std::move(m_tokens);
    }

private:
    void takeMarkup(QChar next)
    {
        if (m_html.mid(m_position, 4) == u"<!--")
            skipPast(u"-->", m_position + 2); // "<!-->" is a whole comment
        else if (isLetter(next))
            takeTag(HtmlToken::Kind::Opening, m_position + 1);
        else if (next == u'/' && m_position + 2 < m_html.size() && isLetter(m_html[m_position + 2]))
            takeTag(HtmlToken::Kind::Closing, m_position + 2);
        else if (next == u'/' || next == u'!' || next == u'?')
            skipPast(u">", m_position);
        else
            takeText();
    }

    void takeText()
    {
        // The first character may be a "<" that begins nothing.
        qsizetype end = m_html.indexOf(u'<', m_position + 1);
        if (end < 0)
            end = m_html.size();
        m_tokens.push_back({HtmlToken::Kind::Text, m_html.mid(m_position, end - m_position).toString()});
        m_position = end;
    }

    void takeTag(HtmlToken::Kind kind, qsizetype nameStart)
    {
        qsizetype nameEnd = nameStart;
        while (nameEnd < m_html.size() && !endsName(m_html[nameEnd]))
            ++nameEnd;
        const qsizetype end = tagEnd(nameEnd);
        if (end < 0) {
            m_position = m_html.size();
            return;
        }
        QString name = m_html.mid(nameStart, nameEnd - nameStart).toString().toLower();
        m_position = end + 1;
        if (kind == HtmlToken::Kind::Opening && hidesContent(name))
            skipElement(name);
        else
            m_tokens.push_back({kind, std::move(name)});
    }

    /// Where the ">" of the tag is that is open at `from`: one in a quoted attribute value does not count. When a
    /// quotation does not end, neither this tag nor any later one is read that way: looking again would take
    /// quadratic time.
    qsizetype tagEnd(qsizetype from)
    {
        QChar quote;
        bool valueBegins = false;
        for (qsizetype i = from; i < m_html.size() && !m_quotesAreBroken; ++i) {
            const QChar character = m_html[i];
            if (!quote.isNull()) {
                if (character == quote)
                    quote = QChar();
            } else if (character == u'>') {
                return i;
            } else if (valueBegins && (character == u'"' || character == u'\'')) {
                quote = character;
                valueBegins = false;
            } else if (!character.isSpace()) {
                valueBegins = character == u'=';
            }
        }
        m_quotesAreBroken = true;
        return m_html.indexOf(u'>', from);
    }

    void skipElement(const QString& name)
    {
        const QString closing = QStringLiteral("</") + name;
        for (;;) {
            skipPast(closing, m_position, Qt::CaseInsensitive);
            if (m_position >= m_html.size() || endsName(m_html[m_position]))
                break;
        }
        skipPast(u">", m_position);
    }

    void skipPast(QStringView end, qsizetype from, Qt::CaseSensitivity sensitivity = Qt::CaseSensitive)
    {
        const qsizetype found = m_html.indexOf(end, from, sensitivity);
        m_position = found < 0 ? m_html.size() : found + end.size();
    }

    QStringView m_html;
    qsizetype m_position = 0;
    bool m_quotesAreBroken = false;
    std::vector<HtmlToken> m_tokens;
};

} // namespace

std::vector<HtmlToken> scanHtml(QStringView html)
{
    return HtmlScanner(html).scan();
}

} // namespace loom
