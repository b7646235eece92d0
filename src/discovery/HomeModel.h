#pragma once

#include "discovery/RecoRail.h"

#include <QAbstractListModel>

namespace loom
{

class Announcements;
class DataFolder;

/// The rails of the home: for the shopper, what is new, then collections. No piece stands on it twice. The rails of the
/// last time are there at once; a rail that is on the screen keeps its place when something newer arrives, and one that
/// has nothing to show is not among the rows. Main thread; begins with load().
class HomeModel final : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(loom::HomeModel::Phase phase READ phase NOTIFY changed)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY changed)
    Q_PROPERTY(QString errorText READ errorText NOTIFY changed)
    Q_PROPERTY(bool isOffline READ isOffline NOTIFY changed)

public:
    enum class Phase { Idle, Loading, Loaded, Empty, Failed };
    Q_ENUM(Phase)
    enum Role { RailRole = Qt::UserRole + 1, KindRole, HandleRole };
    Q_ENUM(Role)

    static constexpr int maximumCollections = 6;
    /// Where the rails of the last time are kept.
    static constexpr QLatin1String snapshot{"snap-home-rails"};

    HomeModel(const RecoServices& services, Announcements& announcements, DataFolder& folder,
              QObject* parent = nullptr);

    [[nodiscard]] int count() const { return static_cast<int>(m_shown.size()); }
    [[nodiscard]] const std::vector<RecoRail*>& rails() const { return m_shown; }
    [[nodiscard]] Phase phase() const;
    [[nodiscard]] bool isLoading() const;
    /// Why nothing is shown; empty while something is.
    [[nodiscard]] QString errorText() const;
    [[nodiscard]] bool isOffline() const;

    /// Loads unless it is loaded or loading.
    Q_INVOKABLE void load();
    Q_INVOKABLE void reload();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] RecoRail* makeRail(RecoRail::Source source);
    /// Null when there is none.
    [[nodiscard]] RecoRail* rail(RecoAPI::Kind kind, const QString& handle = {}) const;
    [[nodiscard]] const APIError* failure() const;
    void restore();
    void save();
    [[nodiscard]] QCoro::Task<> fetchCollections();
    void placeCollections(const std::vector<RecoAPI::Rail>& wanted);
    void enterAccount();
    void arrange();
    void showRows();

    RecoServices m_services;
    DataFolder& m_folder;
    std::vector<RecoRail*> m_rails; ///< in their order on the page, shown or not; children of this
    std::vector<RecoRail*> m_shown;
    std::optional<APIError> m_failure; ///< of the list of collections
    QString m_department;              ///< of what was kept last
    QString m_customer;                ///< who asked last; empty for a visitor
    bool m_isBegun = false;
    bool m_mustSave = false;
    bool m_isArranging = false;
    Work m_listing;
};

} // namespace loom
