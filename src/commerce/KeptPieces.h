#pragma once

#include "catalog/ProductListItem.h"
#include "net/Work.h"

#include <QObject>
#include <QSet>
#include <qcoro/qcorotask.h>

namespace loom
{

class Clock;
class DataFolder;

/// Pieces kept in a file of this machine, the newest first, each handle once, stamped with what the shopper saw. What a
/// newer version wrote beside that stays in the file. What is taken out can be put back until something else is done
/// about it. Main thread; a long file is read and written on others.
class KeptPieces : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(bool isLoaded READ isLoaded NOTIFY changed)
    Q_PROPERTY(int revision READ revision NOTIFY changed)
    Q_PROPERTY(int removedCount READ removedCount NOTIFY removalChanged)
    Q_PROPERTY(QString removedTitle READ removedTitle NOTIFY removalChanged)

public:
    /// `maximum` of 0 is no limit.
    KeptPieces(QString fileName, std::size_t maximum, DataFolder& folder, Clock& clock, QObject* parent = nullptr);

    [[nodiscard]] const QString& fileName() const { return m_fileName; }
    [[nodiscard]] const std::vector<ProductListItem>& items() const { return m_items; }
    [[nodiscard]] const QSet<QString>& handles() const { return m_handles; }
    [[nodiscard]] Q_INVOKABLE bool contains(const QString& handle) const { return m_handles.contains(handle); }
    [[nodiscard]] int count() const { return static_cast<int>(m_items.size()); }
    /// The file has been read. What is put in before then stands before what it holds.
    [[nodiscard]] bool isLoaded() const { return m_isLoaded; }
    /// Raised by every change.
    [[nodiscard]] int revision() const { return m_revision; }

    void load();
    /// Returns whether it was there.
    Q_INVOKABLE bool remove(const QString& handle);
    Q_INVOKABLE void removeAll(const QStringList& handles);
    /// Puts `item` in the place of a piece that was kept without the catalog's number of it. Returns whether it was.
    bool complete(const QString& handle, ProductListItem item);
    Q_INVOKABLE void clear();
    /// Empties the list and removes its file for good.
    void forget();

    /// What was taken out since the last undo or since it was forgotten.
    [[nodiscard]] int removedCount() const;
    [[nodiscard]] QString removedTitle() const;
    Q_INVOKABLE void undoRemoval();
    Q_INVOKABLE void forgetRemoval();

Q_SIGNALS:
    void changed();
    void loaded();
    /// Changed by the shopper.
    void edited();
    void forgotten();
    void removalChanged();

protected:
    /// Stamps the piece and puts it first, in place of one with its handle.
    void putFirst(ProductListItem item);

private:
    void stamp(ProductListItem& item) const;
    struct Removed {
        ProductListItem item;
        QByteArray record;
        std::size_t fromEnd = 0; ///< 1 for the last, before anything of its removal was taken out
    };
    /// What the file holds, as far as it can be read.
    struct Contents {
        std::vector<ProductListItem> items;
        QList<QByteArray> records;
        bool isWhole = true;
    };

    [[nodiscard]] static Contents decode(const QByteArray& list);
    [[nodiscard]] QCoro::Task<> read();
    void adopt(Contents contents);
    void take(const std::function<bool(const QString&)>& isWanted);
    void putBack(std::vector<Removed> removal);
    void dropRemoved(const QString& handle);
    void truncate();
    void afterEdit();
    void save();

    QString m_fileName;
    std::size_t m_maximum;
    DataFolder& m_folder;
    Clock& m_clock;
    std::vector<ProductListItem> m_items;
    QList<QByteArray> m_records; ///< of each item what stands of it in the file
    QSet<QString> m_handles;
    std::vector<std::vector<Removed>> m_removals; ///< the latest last
    bool m_isLoaded = false;
    bool m_mustSave = false;
    int m_revision = 0;
    Work m_loading;
};

} // namespace loom
