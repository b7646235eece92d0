#pragma once

#include <QObject>
#include <QStringList>

namespace loom
{

class Preferences;

/// What the shopper searched for last, newest first, each once. Kept among the settings. Main thread; one per process.
class RecentSearches final : public QObject
{
    Q_OBJECT

public:
    static constexpr qsizetype maximum = 10;

    explicit RecentSearches(Preferences& preferences, QObject* parent = nullptr);

    [[nodiscard]] const QStringList& list() const { return m_list; }
    void add(const QString& text);
    void remove(const QString& text);

Q_SIGNALS:
    void changed();

private:
    void set(QStringList list);

    Preferences& m_preferences;
    QStringList m_list;
};

} // namespace loom
