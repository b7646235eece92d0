#pragma once

#include <QObject>
#include <QStringList>

namespace loom
{

class DataFolder;

/// The pieces the shopper does not want recommended any more, kept on this machine whoever is signed in. The one hidden
/// last can be brought back until something else is done about it. One per process; main thread.
class NotInterested final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString lastTitle READ lastTitle NOTIFY lastChanged)
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY lastChanged)
    Q_PROPERTY(int count READ count NOTIFY changed)

public:
    static constexpr qsizetype maximum = 500;

    /// Reads what is kept at once.
    explicit NotInterested(DataFolder& folder, QObject* parent = nullptr);

    /// The newest first.
    [[nodiscard]] const QStringList& handles() const { return m_handles; }
    [[nodiscard]] bool contains(const QString& handle) const { return m_handles.contains(handle); }
    [[nodiscard]] int count() const { return static_cast<int>(m_handles.size()); }
    /// What was hidden a moment ago.
    [[nodiscard]] const QString& lastTitle() const { return m_lastTitle; }
    [[nodiscard]] bool canUndo() const { return !m_last.isEmpty(); }

    Q_INVOKABLE void hide(const QString& handle, const QString& title);
    Q_INVOKABLE void undo();
    /// What was hidden stays hidden.
    Q_INVOKABLE void forgetUndo();
    /// Hides nothing any more, and removes the file.
    Q_INVOKABLE void clear();

Q_SIGNALS:
    void changed();
    void lastChanged();

private:
    void setLast(const QString& handle, const QString& title);
    void save();

    DataFolder& m_folder;
    QStringList m_handles;
    QString m_last;
    QString m_lastTitle;
};

} // namespace loom
