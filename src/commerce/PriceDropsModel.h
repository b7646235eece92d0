#pragma once

#include "commerce/KeptPiecesModel.h"

namespace loom
{

/// The kept pieces that cost less in the shopper's market than when they were seen, by their live prices. Rows stay as
/// they are while the page is looked at, also when opening a piece has it seen anew. Main thread; begins with load().
class PriceDropsModel final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(loom::PieceListModel* pieces READ pieces CONSTANT)
    Q_PROPERTY(loom::PriceDropsModel::Phase phase READ phase NOTIFY stateChanged)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY stateChanged)
    Q_PROPERTY(QString errorText READ errorText NOTIFY stateChanged)
    Q_PROPERTY(bool isOffline READ isOffline NOTIFY stateChanged)

public:
    enum class Phase { Idle, Loading, Loaded, Empty, NothingKept, Failed };
    Q_ENUM(Phase)

    /// Of a piece in several lists the first that it costs less than counts.
    PriceDropsModel(std::vector<const KeptPieces*> lists, KeptPiecesModel::Services services,
                    QObject* parent = nullptr);

    [[nodiscard]] PieceListModel* pieces() { return &m_pieces; }
    [[nodiscard]] Phase phase() const;
    [[nodiscard]] bool isLoading() const { return m_loading.isRunning(); }
    [[nodiscard]] QString errorText() const { return m_failure ? errorDescription(*m_failure) : QString(); }
    [[nodiscard]] bool isOffline() const { return m_failure && m_failure->as<APIError::Offline>(); }

    /// Loads unless it is loaded or loading; after a failure it tries again.
    Q_INVOKABLE void load();
    Q_INVOKABLE void reload();

Q_SIGNALS:
    void stateChanged();

private:
    [[nodiscard]] QCoro::Task<> fetch();
    [[nodiscard]] std::vector<ProductListItem> candidates() const;
    void followLists();

    std::vector<const KeptPieces*> m_lists;
    KeptPiecesModel::Services m_services;
    PieceListModel m_pieces;
    bool m_isLoaded = false;
    bool m_isAwaited = false; ///< wanted as soon as the lists have been read
    std::optional<APIError> m_failure;
    Work m_loading;
};

} // namespace loom
