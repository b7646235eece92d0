#include "discovery/NotInterested.h"

#include "storage/DataFolder.h"

#include <QJsonArray>

namespace loom
{

namespace
{

const QString file = QStringLiteral("lst_not_interested");

QStringList decodeHandles(const JsonReader& json)
{
    if (!json.isList())
        json.fail(QStringLiteral("expected a list"));
    QStringList handles;
    for (const JsonReader& element : json.elements()) {
        if (const auto handle = element.asText(); handle && !handle->isEmpty())
            handles.append(*handle);
    }
    handles.removeDuplicates();
    return handles.mid(0, NotInterested::maximum);
}

} // namespace

NotInterested::NotInterested(DataFolder& folder, QObject* parent)
    : QObject(parent)
    , m_folder(folder)
    , m_handles(folder.load(file, decodeHandles).value_or(QStringList()))
{
}

void NotInterested::hide(const QString& handle, const QString& title)
{
    if (handle.isEmpty() || contains(handle))
        return;
    m_handles.prepend(handle);
    m_handles = m_handles.mid(0, maximum);
    save();
    setLast(handle, title);
    Q_EMIT changed();
}

void NotInterested::undo()
{
    if (!m_handles.removeOne(m_last))
        return;
    save();
    setLast({}, {});
    Q_EMIT changed();
}

void NotInterested::forgetUndo()
{
    setLast({}, {});
}

void NotInterested::clear()
{
    m_handles.clear();
    m_folder.remove(file);
    setLast({}, {});
    Q_EMIT changed();
}

void NotInterested::setLast(const QString& handle, const QString& title)
{
    m_last = handle;
    m_lastTitle = title;
    Q_EMIT lastChanged();
}

void NotInterested::save()
{
    m_folder.save(file, QJsonArray::fromStringList(m_handles));
}

} // namespace loom
