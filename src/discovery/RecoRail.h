#pragma once

#include "discovery/RecoAPI.h"
#include "discovery/RecoCards.h"
#include "net/Work.h"

namespace loom
{

/// One feed of recommendations, as a rail or as a page that loads on. What is shown stays until something newer has
/// arrived, also across a failure. Main thread; begins with load().
class RecoRail final : public loom::RecoCards // in full, for the tools that read the types of pages
{
    Q_OBJECT
    Q_PROPERTY(QString kind READ kind CONSTANT)
    Q_PROPERTY(QString handle READ handle CONSTANT)
    Q_PROPERTY(QString title READ title NOTIFY stateChanged)
    Q_PROPERTY(QString note READ note NOTIFY stateChanged)
    Q_PROPERTY(loom::RecoRail::Phase phase READ phase NOTIFY stateChanged)
    Q_PROPERTY(QString errorText READ errorText NOTIFY stateChanged)
    Q_PROPERTY(bool isOffline READ isOffline NOTIFY stateChanged)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY stateChanged)
    Q_PROPERTY(bool isLoadingMore READ isLoadingMore NOTIFY stateChanged)
    Q_PROPERTY(bool hasNextPage READ hasNextPage NOTIFY stateChanged)
    Q_PROPERTY(bool hasLoadMoreFailed READ hasLoadMoreFailed NOTIFY stateChanged)
    Q_PROPERTY(QString loadMoreErrorText READ loadMoreErrorText NOTIFY stateChanged)

public:
    enum class Phase { Idle, Loading, Loaded, Empty, Failed };
    Q_ENUM(Phase)

    struct Source {
        RecoAPI::Kind kind = RecoAPI::Kind::ForYou;
        QString handle; ///< of the collection
        QString title;  ///< empty for the kind's own
        QString label;

        bool operator==(const Source&) const = default;
    };

    /// Whole rows at two, three, four, six and eight columns.
    static constexpr int pageSize = 24;

    RecoRail(Source source, const RecoServices& services, QObject* parent = nullptr);

    [[nodiscard]] const Source& source() const { return m_source; }
    [[nodiscard]] QString kind() const { return recoKindName(m_source.kind); }
    [[nodiscard]] const QString& handle() const { return m_source.handle; }
    [[nodiscard]] QString title() const;
    /// A few words below the title; may be empty.
    [[nodiscard]] QString note() const;
    void setWords(const QString& title, const QString& label);

    [[nodiscard]] Phase phase() const;
    [[nodiscard]] const std::optional<APIError>& failure() const { return m_failure; }
    [[nodiscard]] QString errorText() const { return m_failure ? errorDescription(*m_failure) : QString(); }
    [[nodiscard]] bool isOffline() const { return m_failure && m_failure->as<APIError::Offline>(); }
    [[nodiscard]] bool isLoading() const { return m_loading.isRunning(); }
    [[nodiscard]] bool isLoadingMore() const { return m_loadingMore.isRunning(); }
    [[nodiscard]] bool hasNextPage() const { return m_hasNextPage; }
    [[nodiscard]] bool hasLoadMoreFailed() const { return m_loadMoreFailure.has_value(); }
    [[nodiscard]] QString loadMoreErrorText() const
    {
        return m_loadMoreFailure ? errorDescription(*m_loadMoreFailure) : QString();
    }
    /// The store has answered since it was begun.
    [[nodiscard]] bool isLoaded() const { return m_isLoaded; }

    /// Loads unless it is loaded or loading.
    Q_INVOKABLE void load();
    Q_INVOKABLE void reload();
    /// Loads the next page, when there is one and none is on its way.
    Q_INVOKABLE void loadMore();

    /// Shows what was recommended last time until something newer has arrived.
    void restore(std::vector<RecoProduct> products);
    /// Shows nothing and knows nothing.
    void forget();

Q_SIGNALS:
    void stateChanged();

private:
    [[nodiscard]] QCoro::Task<> fetch();
    [[nodiscard]] QCoro::Task<> fetchMore();
    [[nodiscard]] RecoAPI::FeedRequest request(int offset) const;
    void moveOn(const RecoAPI::Feed& feed);

    Source m_source;
    bool m_isLoaded = false;
    int m_offset = 0;
    bool m_hasNextPage = false;
    std::optional<APIError> m_failure;
    std::optional<APIError> m_loadMoreFailure;
    Work m_loading;
    Work m_loadingMore;
};

} // namespace loom
