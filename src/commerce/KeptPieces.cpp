#include "commerce/KeptPieces.h"

#include "base/Clock.h"
#include "storage/DataFolder.h"

#include <QJsonDocument>

#include <cmath>

namespace loom
{

namespace
{

/// A file up to this size is read before anything is shown.
constexpr qsizetype quickSize = qsizetype{64} * 1024;

/// The keys of an item; all others belong to somebody else.
constexpr std::array itemKeys{"id",          "handle",     "title",        "vendor",          "imageURL",   "price",
                              "tags",        "createdAt",  "seenPrice",    "compareAtPrice",  "cardImages", "seenAt",
                              "styleImages", "recoReason", "seenCurrency", "availableForSale"};

/// The item over whatever else its record said so far.
QByteArray recordOf(const ProductListItem& item, const QByteArray& previous)
{
    QJsonObject record = QJsonDocument::fromJson(previous).object();
    for (const char* key : itemKeys)
        record.remove(QLatin1String(key));
    const QJsonObject known = toJson(item);
    for (auto field = known.begin(); field != known.end(); ++field)
        record.insert(field.key(), field.value());
    return QJsonDocument(record).toJson(QJsonDocument::Compact);
}

QByteArray joined(const QList<QByteArray>& records)
{
    QByteArray list = "[";
    qsizetype size = 2 + records.size();
    for (const QByteArray& record : records)
        size += record.size();
    list.reserve(size);
    for (const QByteArray& record : records) {
        if (list.size() > 1)
            list += ',';
        list += record;
    }
    return list + ']';
}

} // namespace

KeptPieces::KeptPieces(QString fileName, std::size_t maximum, DataFolder& folder, Clock& clock, QObject* parent)
    : QObject(parent)
    , m_fileName(std::move(fileName))
    , m_maximum(maximum)
    , m_folder(folder)
    , m_clock(clock)
{
}

KeptPieces::Contents KeptPieces::decode(const QByteArray& list)
{
    Contents contents;
    QSet<QString> handles;
    for (const QByteArray& record : DataFolder::completeElements(list, &contents.isWhole)) {
        auto item = decodeJson(record, decodeStoredItem);
        if (!item || item->handle.isEmpty()) {
            contents.isWhole = false;
            continue;
        }
        if (handles.contains(item->handle))
            continue;
        handles.insert(item->handle);
        contents.items.push_back(*std::move(item));
        contents.records.append(record);
    }
    return contents;
}

void KeptPieces::load()
{
    static_cast<void>(read());
}

QCoro::Task<> KeptPieces::read()
{
    const Work::Run run = m_loading.begin();
    const std::optional<QByteArray> list = m_folder.read(m_fileName);
    Contents contents;
    if (list && list->size() <= quickSize)
        contents = decode(*list);
    else if (list)
        contents = co_await QtConcurrent::run(&KeptPieces::decode, *list);
    if (!run.isStopped())
        adopt(std::move(contents));
}

void KeptPieces::adopt(Contents contents)
{
    m_isLoaded = true;
    if (!contents.isWhole)
        m_folder.markUnreadable(m_fileName, QStringLiteral("some pieces do not decode"));
    QSet<QString> removed;
    for (const auto& removal : m_removals) {
        for (const Removed& piece : removal)
            removed.insert(piece.item.handle);
    }
    m_items.reserve(m_items.size() + contents.items.size() + 1);
    for (std::size_t i = 0; i < contents.items.size(); ++i) {
        ProductListItem& item = contents.items[i];
        QByteArray& record = contents.records[static_cast<qsizetype>(i)];
        if (removed.contains(item.handle))
            continue; // put in and taken out again while the file was read
        if (m_handles.contains(item.handle)) {
            const auto newer = std::ranges::find(m_items, item.handle, &ProductListItem::handle);
            m_records[newer - m_items.begin()] = recordOf(*newer, record);
            continue;
        }
        m_handles.insert(item.handle);
        m_items.push_back(std::move(item));
        m_records.append(std::move(record));
    }
    truncate();
    ++m_revision;
    Q_EMIT changed();
    if (std::exchange(m_mustSave, false))
        save();
    Q_EMIT loaded();
}

void KeptPieces::stamp(ProductListItem& item) const
{
    item.seenAt = m_clock.now();
    item.seenPrice = std::isfinite(item.price.amount) ? std::optional(item.price.amount) : std::nullopt;
    item.seenCurrency = item.price.currencyCode;
}

bool KeptPieces::complete(const QString& handle, ProductListItem item)
{
    const auto found = std::ranges::find(m_items, handle, &ProductListItem::handle);
    if (found == m_items.end() || !found->id.isEmpty() || item.id.isEmpty())
        return false;
    item.handle = handle; // the list knows it by this
    item.recoReason = found->recoReason;
    stamp(item);
    QByteArray& record = m_records[found - m_items.begin()];
    record = recordOf(item, record);
    *found = std::move(item);
    afterEdit();
    return true;
}

void KeptPieces::putFirst(ProductListItem item)
{
    stamp(item);
    QByteArray previous;
    if (m_handles.contains(item.handle)) {
        const auto found = std::ranges::find(m_items, item.handle, &ProductListItem::handle);
        previous = m_records.takeAt(found - m_items.begin());
        m_items.erase(found);
    }
    m_records.prepend(recordOf(item, previous));
    m_handles.insert(item.handle);
    dropRemoved(item.handle);
    m_items.insert(m_items.begin(), std::move(item));
    truncate();
    afterEdit();
}

void KeptPieces::truncate()
{
    if (m_maximum == 0)
        return;
    while (m_items.size() > m_maximum) {
        m_handles.remove(m_items.back().handle);
        m_items.pop_back();
        m_records.removeLast();
    }
}

bool KeptPieces::remove(const QString& handle)
{
    if (!contains(handle))
        return false;
    take([&handle](const QString& other) { return other == handle; });
    return true;
}

void KeptPieces::removeAll(const QStringList& handles)
{
    take([wanted = QSet<QString>(handles.begin(), handles.end())](const QString& handle) {
        return wanted.contains(handle);
    });
}

void KeptPieces::clear()
{
    take([](const QString&) { return true; });
}

void KeptPieces::take(const std::function<bool(const QString&)>& isWanted)
{
    std::vector<Removed> removal;
    std::size_t kept = 0;
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        QByteArray& record = m_records[static_cast<qsizetype>(i)];
        if (isWanted(m_items[i].handle)) {
            m_handles.remove(m_items[i].handle);
            removal.push_back(
                {.item = std::move(m_items[i]), .record = std::move(record), .fromEnd = m_items.size() - i});
            continue;
        }
        if (kept != i) {
            m_items[kept] = std::move(m_items[i]);
            m_records[static_cast<qsizetype>(kept)] = std::move(record);
        }
        ++kept;
    }
    if (removal.empty())
        return;
    m_items.resize(kept);
    m_records.resize(static_cast<qsizetype>(kept));
    m_removals.push_back(std::move(removal));
    afterEdit();
    Q_EMIT removalChanged();
}

void KeptPieces::forget()
{
    m_loading.stop();
    m_items.clear();
    m_records.clear();
    m_handles.clear();
    m_isLoaded = true;
    m_mustSave = false;
    m_folder.remove(m_fileName);
    ++m_revision;
    Q_EMIT forgotten();
    Q_EMIT changed();
    forgetRemoval();
}

int KeptPieces::removedCount() const
{
    std::size_t count = 0;
    for (const auto& removal : m_removals)
        count += removal.size();
    return static_cast<int>(count);
}

QString KeptPieces::removedTitle() const
{
    return m_removals.empty() ? QString() : m_removals.back().front().item.title;
}

void KeptPieces::undoRemoval()
{
    if (m_removals.empty())
        return;
    while (!m_removals.empty()) {
        std::vector<Removed> removal = std::move(m_removals.back());
        m_removals.pop_back();
        putBack(std::move(removal));
    }
    truncate();
    afterEdit();
    Q_EMIT removalChanged();
}

/// In one pass, so that ten thousand come back as quickly as they went; from the end, so that what is newer stays
/// first.
void KeptPieces::putBack(std::vector<Removed> removal)
{
    std::vector<ProductListItem> items;
    QList<QByteArray> records;
    items.reserve(m_items.size() + removal.size());
    records.reserve(m_records.size() + static_cast<qsizetype>(removal.size()));
    auto next = removal.rbegin();
    const auto takeNext = [&] {
        m_handles.insert(next->item.handle);
        items.push_back(std::move(next->item));
        records.append(std::move(next->record));
        ++next;
    };
    for (std::size_t i = m_items.size(); i > 0; --i) {
        while (next != removal.rend() && next->fromEnd <= items.size() + 1)
            takeNext();
        items.push_back(std::move(m_items[i - 1]));
        records.append(m_records[static_cast<qsizetype>(i - 1)]);
    }
    while (next != removal.rend())
        takeNext();
    std::ranges::reverse(items);
    std::ranges::reverse(records);
    m_items = std::move(items);
    m_records = std::move(records);
}

void KeptPieces::dropRemoved(const QString& handle)
{
    if (m_removals.empty())
        return;
    for (auto& removal : m_removals)
        std::erase_if(removal, [&handle](const Removed& removed) { return removed.item.handle == handle; });
    std::erase_if(m_removals, [](const auto& removal) { return removal.empty(); });
    Q_EMIT removalChanged();
}

void KeptPieces::forgetRemoval()
{
    m_removals.clear();
    Q_EMIT removalChanged();
}

void KeptPieces::afterEdit()
{
    ++m_revision;
    save();
    Q_EMIT edited();
    Q_EMIT changed();
}

void KeptPieces::save()
{
    // Until the file has been read, what is in it is not known here.
    if (!m_isLoaded) {
        m_mustSave = true;
        return;
    }
    m_folder.save(m_fileName, [records = m_records] { return joined(records); });
}

} // namespace loom
