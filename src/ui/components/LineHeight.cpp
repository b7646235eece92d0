#include "ui/components/LineHeight.h"

#include <QScopedValueRollback>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>

namespace loom
{

void LineHeight::setDocument(QObject* object)
{
    auto* const document = qobject_cast<QQuickTextDocument*>(object);
    if (m_document == document)
        return;
    if (m_document)
        m_document->textDocument()->disconnect(this);
    m_document = document;
    // A text that is set anew has no format.
    if (m_document)
        connect(m_document->textDocument(), &QTextDocument::contentsChanged, this, &LineHeight::apply);
    apply();
    Q_EMIT changed();
}

void LineHeight::setHeight(double height)
{
    if (m_height == height)
        return;
    m_height = height;
    apply();
    Q_EMIT changed();
}

void LineHeight::apply()
{
    // What it does changes the contents, too.
    if (!m_document || m_height <= 0 || m_isApplying)
        return;
    const QScopedValueRollback applying(m_isApplying, true);
    QTextBlockFormat format;
    format.setLineHeight(m_height, QTextBlockFormat::FixedHeight);
    QTextCursor cursor(m_document->textDocument());
    cursor.select(QTextCursor::Document);
    cursor.mergeBlockFormat(format);
}

} // namespace loom
