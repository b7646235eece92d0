#include "storage/DataFolder.h"

#include "base/Log.h"
#include "storage/AtomicFile.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <filesystem>

namespace loom
{

namespace
{

QString setAsidePath(const QString& path)
{
    return path + QStringLiteral(".unreadable");
}

QByteArray encode(const QJsonValue& value)
{
    if (value.isArray())
        return QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact);
    if (value.isObject())
        return QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact);
    // Qt writes no bare values: take the brackets off a list of one.
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

/// Whether the file, if there is one, can be replaced without losing what nobody could read.
bool isReadable(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return !file.exists();
    return JsonDocument::parse(file.readAll()).hasValue();
}

/// Keeps the file, if there is one, beside its place; that takes neither room for its bytes nor the right to read them.
[[nodiscard]] bool setAside(const QString& path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return true;
    const std::filesystem::path aside = QFileInfo(setAsidePath(path)).filesystemFilePath();
    std::error_code failure;
    std::filesystem::remove(aside, failure);
    // Linked, it also stays in its place until something else is there.
    std::filesystem::create_hard_link(file.filesystemCanonicalFilePath(), aside, failure);
    if (failure)
        std::filesystem::rename(file.filesystemFilePath(), aside, failure);
    if (failure) {
        qCWarning(logStorage) << "cannot set aside" << path << failure.message().c_str();
        return false;
    }
    std::filesystem::permissions(aside, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write,
                                 failure);
    return true;
}

} // namespace

DataFolder::DataFolder(QString path)
    : m_path(std::move(path))
{
}

QString DataFolder::fileName(const QString& name)
{
    const QString ending = QStringLiteral(".json");
    return name.endsWith(ending) ? name : name + ending;
}

QString DataFolder::filePath(const QString& name) const
{
    return m_path + QLatin1Char('/') + fileName(name);
}

void DataFolder::save(const QString& name, const QJsonValue& value)
{
    save(name, FileWriter::Encode([bytes = encode(value)] { return bytes; }));
}

void DataFolder::save(const QString& name, FileWriter::Encode encode)
{
    m_writer.write(filePath(name), std::move(encode),
                   [this, file = fileName(name)](const QString& path) { return mayReplace(file, path); });
}

void DataFolder::saveSnapshot(const QString& name, const QJsonValue& value, const QDateTime& savedAt)
{
    save(name, QJsonObject{{QStringLiteral("value"), value}, {QStringLiteral("savedAt"), formatDate(savedAt)}});
}

bool DataFolder::mayReplace(const QString& file, const QString& path)
{
    if (!isKnownUnreadable(file) && isReadable(path))
        return true;
    if (!setAside(path))
        return false;
    const QMutexLocker lock(&m_mutex);
    m_unreadable.remove(file);
    return true;
}

bool DataFolder::isKnownUnreadable(const QString& file) const
{
    const QMutexLocker lock(&m_mutex);
    return m_unreadable.contains(file);
}

void DataFolder::remove(const QString& name)
{
    {
        const QMutexLocker lock(&m_mutex);
        m_unreadable.remove(fileName(name));
    }
    m_writer.remove(filePath(name));
    m_writer.remove(setAsidePath(filePath(name)));
}

std::optional<QByteArray> DataFolder::read(const QString& name)
{
    const QString path = filePath(name);
    if (auto pending = m_writer.pending(path))
        return *std::move(pending);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (file.exists())
            markUnreadable(name, file.errorString());
        return std::nullopt;
    }
    return file.readAll();
}

void DataFolder::markUnreadable(const QString& name, const QString& reason)
{
    qCWarning(logStorage) << fileName(name) << "does not decode:" << reason;
    const QMutexLocker lock(&m_mutex);
    m_unreadable.insert(fileName(name));
}

std::vector<QByteArray> DataFolder::completeElements(const QByteArray& list, bool* isWhole)
{
    std::vector<QByteArray> elements;
    qsizetype start = -1;
    int depth = 0;
    bool isInText = false;
    bool isClosed = false;
    const QByteArray trimmed = list.trimmed();
    for (qsizetype i = 0; i < trimmed.size() && !isClosed; ++i) {
        const char c = trimmed[i];
        if (isInText) {
            if (c == '\\')
                ++i;
            else if (c == '"')
                isInText = false;
            continue;
        }
        if (c == '"')
            isInText = true;
        const bool isSeparator = depth == 1 && (c == ',' || c == ']');
        if (isSeparator && start >= 0) {
            elements.push_back(trimmed.mid(start, i - start));
            start = -1;
        } else if (depth == 1 && start < 0 && !isSeparator && !QChar::isSpace(static_cast<uchar>(c))) {
            start = i;
        }
        if (c == '[' || c == '{')
            ++depth;
        else if (c == ']' || c == '}')
            isClosed = --depth <= 0;
        if (depth == 0 && !isClosed)
            break; // not a list
    }
    *isWhole = isClosed && trimmed.startsWith('[') && trimmed.endsWith(']');
    // An element that was closed before the cut is whole even without the separator behind it. A number is never
    // closed.
    const bool endsClosed = trimmed.endsWith('}') || trimmed.endsWith(']') || trimmed.endsWith('"');
    if (!isClosed && start >= 0 && depth == 1 && !isInText && endsClosed)
        elements.push_back(trimmed.mid(start));
    return elements;
}

} // namespace loom
