#pragma once

#include <QAbstractListModel>

#include <vector>

namespace loom
{

class MarketStore;

/// The countries a shopper can shop in, or the languages, as a list to pick from: filtered by what is typed, without
/// regard to case and accents. Main thread; belongs to the picker that shows it.
class MarketChoicesModel final : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(int currentRow READ currentRow NOTIFY changed)
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY changed)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY changed)
    Q_PROPERTY(QString errorText READ errorText NOTIFY changed)

public:
    enum Kind { Countries, Languages };
    Q_ENUM(Kind)
    enum Role { CodeRole = Qt::UserRole + 1, TitleRole, NoteRole, IsCurrentRole };
    Q_ENUM(Role)

    MarketChoicesModel(Kind kind, MarketStore& market, QObject* parent = nullptr);

    [[nodiscard]] int count() const { return static_cast<int>(m_shown.size()); }
    /// The row of the present choice; less than 0 while it is filtered out.
    [[nodiscard]] int currentRow() const;
    [[nodiscard]] const QString& filter() const { return m_filter; }
    void setFilter(const QString& filter);
    /// There is nothing to show yet.
    [[nodiscard]] bool isLoading() const;
    /// Why there is nothing to show; empty where there is something.
    [[nodiscard]] QString errorText() const;

    Q_INVOKABLE void retry();
    Q_INVOKABLE void choose(int row);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void changed();

private:
    struct Choice {
        QString code;
        QString title;
        QString note;
        QString names; ///< folded: what it is called, in several languages
        QString codes; ///< folded: what it and its currency are known by
    };

    void rebuild();
    void addCountries();
    void addLanguages();
    void show();
    [[nodiscard]] QString currentCode() const;

    Kind m_kind;
    MarketStore& m_market;
    QString m_filter;
    std::vector<Choice> m_choices;
    std::vector<std::size_t> m_shown; ///< those that the filter leaves, by their numbers
};

} // namespace loom
