#pragma once

#include <QPointer>
#include <QQmlEngine>
#include <QQuickTextDocument>

namespace loom
{

/// Gives the lines of a text that can be selected the height that labels give theirs. In the item of that text; main
/// thread.
class LineHeight : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QObject* document READ document WRITE setDocument NOTIFY changed)
    Q_PROPERTY(double height READ height WRITE setHeight NOTIFY changed)

public:
    using QObject::QObject;

    /// That of an item, as QML knows it.
    [[nodiscard]] QObject* document() const { return m_document; }
    void setDocument(QObject* object);
    [[nodiscard]] double height() const { return m_height; }
    void setHeight(double height);

Q_SIGNALS:
    void changed();

private:
    void apply();

    QPointer<QQuickTextDocument> m_document;
    double m_height = 0;
    bool m_isApplying = false;
};

} // namespace loom
