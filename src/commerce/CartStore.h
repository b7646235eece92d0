#pragma once

#include "commerce/CartAPI.h"
#include "net/Work.h"

#include <QObject>
#include <QPromise>
#include <QSet>

#include <map>

namespace loom
{

class Clock;
class Preferences;

/// What became of a piece that was put into the cart.
enum class AddOutcome {
    Added,
    SoldOut, ///< the platform took it, and has none left
};

/// What became of a discount code.
enum class CodeOutcome { Applied, NotApplicable, Ignored };

/// The shopper's cart. Keeps only its identifier on this machine; what it shows is always the cart that the platform
/// answered last, whichever window asked. One per process; main thread.
///
/// Several changes may be under way at once. Answers are numbered by when they were asked for: one that is overtaken
/// by the answer to a later change is dropped, and the cart is read anew once all is quiet.
class CartStore final : public QObject
{
    Q_OBJECT

public:
    static constexpr qint64 maximumQuantity = 99;

    CartStore(CartAPI& api, Preferences& preferences, Clock& clock, QObject* parent = nullptr);
    ~CartStore() override;

    [[nodiscard]] const std::optional<Cart>& cart() const { return m_cart; }
    /// The first load of a stored cart is under way.
    [[nodiscard]] bool isLoading() const { return m_refreshing.isRunning() && !m_cart; }
    /// Loading failed, and there is no cart to show.
    [[nodiscard]] bool loadError() const { return m_loadFailed && !m_cart; }
    /// Of the last operation that failed; empty after one that did not. In the language of the window.
    [[nodiscard]] QString errorMessage() const { return m_failure ? errorDescription(*m_failure) : QString(); }
    /// The lines with a change or removal on its way.
    [[nodiscard]] QSet<QString> busyLines() const;
    [[nodiscard]] bool isApplyingCode() const { return m_applying.isRunning(); }
    /// The line that was added a moment ago.
    [[nodiscard]] const std::optional<QString>& justAdded() const { return m_justAdded; }
    /// What the row of a line is to show: the number asked for until the platform has answered.
    [[nodiscard]] qint64 shownQuantity(const CartLine& line) const;
    /// Whether the platform gave less of a line than was asked for.
    [[nodiscard]] bool isClamped(const CartLine& line) const { return m_clamped.contains(line.id); }
    /// What was in a cart that the platform would no longer change, until it is put back or let go.
    [[nodiscard]] const std::vector<CartLineInput>& lostLines() const { return m_lost; }

    /// Whether every change has been answered.
    [[nodiscard]] bool isSettled() const { return m_changes.empty(); }

    /// Shows the stored cart as it is now.
    void refresh() { static_cast<void>(load()); }
    /// The cart to add to, made when there is none.
    [[nodiscard]] QCoro::Task<ApiResult<QString>> ensureCart();
    [[nodiscard]] QCoro::Task<ApiResult<AddOutcome>> add(QString variantID, qint64 quantity);
    /// All of them in one step. Answers with those, by their variants, of which the platform had none left.
    [[nodiscard]] QCoro::Task<ApiResult<QStringList>> addAll(std::vector<CartLineInput> lines);
    /// Is sent when no other number has been asked for during a moment. 0 or less removes the line.
    void setQuantity(const QString& lineID, qint64 quantity);
    void remove(const QString& lineID);
    [[nodiscard]] QCoro::Task<ApiResult<CodeOutcome>> applyCode(QString text);
    void removeCode() { static_cast<void>(clearCode()); }
    /// Moves the cart to the shopper's market.
    void syncBuyerCountry() { static_cast<void>(moveToMarket()); }
    /// A cart made with goods at once, to be bought by itself. Does not touch the shopper's own.
    [[nodiscard]] QCoro::Task<ApiResult<Cart>> createCart(std::vector<CartLineInput> lines);
    /// The shopper's cart or the one made last, whichever is paid for at that address; null when neither is.
    [[nodiscard]] const Cart* cartAt(const QUrl& checkoutURL) const;

    /// Puts the lost lines into the cart, all in one step.
    [[nodiscard]] QCoro::Task<ApiResult<AddOutcome>> restoreLostLines();
    void forgetLostLines();
    /// Sends at once what still waits for more clicks.
    void settle();

Q_SIGNALS:
    /// Anything that the cart's views show may have changed.
    void changed();

private:
    /// A change of one line: at first a wish, then a request.
    struct LineChange {
        qint64 wanted = 0;
        bool isSending = false;
        Work work;
    };
    /// A request on its way: its place among all that were sent, and that it is not yet dealt with.
    class Request
    {
    public:
        /// `cartID`: of the cart it is about; empty for one that is yet to be made.
        explicit Request(CartStore& store, QString cartID = {})
            : m_store(store)
            , m_cartID(std::move(cartID))
            , m_stop(store.stop())
            , m_number(++store.m_sent)
        {
            ++m_store.m_inFlight;
        }
        Request(const Request&) = delete;
        Request& operator=(const Request&) = delete;
        ~Request()
        {
            if (!m_stop.stop_requested())
                m_store.landed();
        }

        [[nodiscard]] quint64 number() const { return m_number; }
        /// A later one was answered first, or the shopper's cart is another by now.
        [[nodiscard]] bool isOvertaken() const
        {
            return m_number < m_store.m_adopted || (!m_cartID.isEmpty() && m_cartID != m_store.storedID());
        }

    private:
        CartStore& m_store;
        QString m_cartID;
        std::stop_token m_stop;
        quint64 m_number;
    };
    using EnsurePromise = QPromise<ApiResult<QString>>;
    enum class IfRefused { Recreate, Report };

    [[nodiscard]] QString storedID() const;
    [[nodiscard]] std::stop_token stop() const { return m_stop.get_token(); }
    void landed();
    void adopt(Cart cart, const Request& request);
    void adoptAsOwn(const Cart& cart, const Request& request);
    /// The platform says that the stored cart no longer exists.
    void drop(const Request& request);
    void forgetCart();
    /// The cart is no longer any good: what else was in it can be put back later.
    void keepLines(const std::vector<CartLineInput>& except);
    void setFailure(const Failure& failure);
    [[nodiscard]] bool mayChange(const QString& lineID) const;

    [[nodiscard]] QCoro::Task<> load();
    [[nodiscard]] std::shared_ptr<EnsurePromise> beginEnsuring();
    void endEnsuring(const std::shared_ptr<EnsurePromise>& promise, ApiResult<QString> result);
    static void finish(EnsurePromise& promise, ApiResult<QString> result);
    [[nodiscard]] QCoro::Task<> ensure(std::shared_ptr<EnsurePromise> promise);
    [[nodiscard]] QCoro::Task<ApiResult<QString>> findOrCreateCart();
    [[nodiscard]] QCoro::Task<> attribute(QString id);
    [[nodiscard]] QCoro::Task<> changeLine(QString lineID, std::chrono::milliseconds pause);
    void finishChange(const QString& lineID, qint64 wanted, ApiResult<Cart> answer, const Request* request);
    [[nodiscard]] QCoro::Task<ApiResult<QStringList>> addLines(std::vector<CartLineInput> lines, IfRefused ifRefused);
    [[nodiscard]] QCoro::Task<ApiResult<QStringList>> recreate(std::vector<CartLineInput> lines);
    /// The variants of which nothing was added.
    QStringList showAdded(const std::vector<CartLineInput>& lines, const Cart& answer, const Request& request);
    [[nodiscard]] QCoro::Task<> highlight(QString lineID);
    [[nodiscard]] QCoro::Task<> clearCode();
    [[nodiscard]] QCoro::Task<> moveToMarket();

    CartAPI& m_api;
    Preferences& m_preferences;
    Clock& m_clock;
    std::optional<Cart> m_cart;
    std::optional<Cart> m_made;
    bool m_loadFailed = false;
    std::optional<APIError> m_failure;
    std::optional<QString> m_justAdded;
    QSet<QString> m_clamped;
    QSet<QString> m_attributed; ///< the carts whose attribution was attempted in this run
    std::vector<CartLineInput> m_lost;
    quint64 m_sent = 0;
    quint64 m_adopted = 0;
    int m_inFlight = 0;
    bool m_wasOvertaken = false;
    std::map<QString, LineChange> m_changes; ///< by line
    std::shared_ptr<EnsurePromise> m_ensuring;
    std::stop_source m_stop; ///< of everything that is not superseded by its like
    Work m_refreshing;
    Work m_applying;
    Work m_moving;
    Work m_highlighting;
};

} // namespace loom
