#pragma once

#include "commerce/CheckoutRules.h"
#include "navigation/CheckoutRequest.h"
#include "net/Work.h"

#include <QObject>
#include <QStringList>
#include <qcoro/qcorotask.h>

#include <functional>

namespace loom
{

class Announcements;
class Clock;

/// What is being paid for, as it was when checkout began.
struct CheckoutGoods {
    qint64 pieces = 0;
    QStringList pictures;
};

/// One checkout on its way through its window: judges where the page may go, notices the order, and survives a page
/// that dies. Knows nothing of the web engine; the window reports what happens in it. Main thread.
class CheckoutModel final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(loom::CheckoutModel::Phase phase READ phase NOTIFY changed)
    Q_PROPERTY(QUrl address READ address NOTIFY addressChanged)
    Q_PROPERTY(int generation READ generation NOTIFY addressChanged)
    Q_PROPERTY(bool isSecure READ isSecure NOTIFY changed)
    Q_PROPERTY(QString connectionText READ connectionText NOTIFY changed)
    Q_PROPERTY(QString errorText READ errorText NOTIFY changed)
    Q_PROPERTY(QString refusedHost READ refusedHost NOTIFY changed)
    Q_PROPERTY(QString completionText READ completionText NOTIFY changed)
    Q_PROPERTY(QString summaryText READ summaryText CONSTANT)
    Q_PROPERTY(QStringList pictures READ pictures CONSTANT)
    Q_PROPERTY(QString userAgent READ userAgent CONSTANT)

public:
    enum class Phase {
        Opening,   ///< nothing of the page can be seen yet
        Page,      ///< the page is shown, perhaps on its way to the next
        Failed,    ///< the page is gone and could not be brought back
        Completed, ///< an order was placed
    };
    Q_ENUM(Phase)

    static constexpr std::chrono::seconds loadTimeout{60};

    struct Services {
        Clock& clock;
        Announcements& announcements;
        std::function<void(const QUrl&)> openExternally;
        QString appVersion;
    };

    /// `start` has been judged already.
    CheckoutModel(CheckoutRequest request, QUrl start, CheckoutHosts hosts, CheckoutGoods goods, Services services,
                  QObject* parent = nullptr);
    ~CheckoutModel() override;

    [[nodiscard]] const CheckoutRequest& request() const { return m_request; }
    [[nodiscard]] Phase phase() const { return m_phase; }
    /// Where a view is to begin.
    [[nodiscard]] const QUrl& address() const { return m_address; }
    /// Raised when the view is to be made anew.
    [[nodiscard]] int generation() const { return m_generation; }
    [[nodiscard]] bool isSecure() const { return m_shown.scheme() == QLatin1String("https"); }
    [[nodiscard]] QString connectionText() const;
    [[nodiscard]] QString errorText() const;
    /// The host to which the page wanted to go and may not; empty when it is none that a browser could go to.
    [[nodiscard]] QString refusedHost() const { return m_refusedLink.host(); }
    [[nodiscard]] QString completionText() const;
    [[nodiscard]] QString summaryText() const;
    [[nodiscard]] const QStringList& pictures() const { return m_goods.pictures; }
    [[nodiscard]] QString userAgent() const;

    /// Whether the main frame may go there. Where it may not, the shopper is asked: a page can click by itself.
    [[nodiscard]] Q_INVOKABLE bool mayNavigate(const QUrl& url);
    Q_INVOKABLE void loadStarted(const QUrl& url);
    /// True when the page confirms an order, and its text is wanted.
    Q_INVOKABLE bool loadFinished(const QUrl& url);
    Q_INVOKABLE void loadFailed(const QString& reason);
    /// A load ended before its end, as when the page wanted to go elsewhere meanwhile and may not. `url` is of the
    /// document that is there all the same. True as above.
    Q_INVOKABLE bool loadStopped(const QUrl& url);
    Q_INVOKABLE void rendererGone();
    /// The text of the page that confirms the order.
    Q_INVOKABLE void readConfirmation(const QString& text);
    Q_INVOKABLE void reload();
    Q_INVOKABLE void continueInBrowser();
    /// Opens in the browser what the page may not show.
    Q_INVOKABLE void openRefusedLink();
    Q_INVOKABLE void forgetRefusedLink();
    /// Asks the window to close.
    void end() { Q_EMIT ended(); }
    /// The window closed.
    Q_INVOKABLE void close();

Q_SIGNALS:
    void changed();
    void addressChanged();
    /// An order was placed, and this is its number, empty while none is known.
    void orderPlaced(const QString& number);
    /// Nothing of it may be shown any more.
    void ended();
    void closed();

private:
    void setPhase(Phase phase);
    void rebuild();
    void die(const QString& reason);
    [[nodiscard]] bool isAllowed(const QUrl& url) const;
    [[nodiscard]] QCoro::Task<> watchLoad();
    [[nodiscard]] QCoro::Task<> findNumber(QString text);

    CheckoutRequest m_request;
    QUrl m_address;
    CheckoutHosts m_hosts;
    CheckoutGoods m_goods;
    Services m_services;
    Phase m_phase = Phase::Opening;
    QUrl m_shown;
    QUrl m_refusedLink;
    bool m_isAtStart = true; ///< the address to begin at may be any of the cart's own
    QString m_reason;        ///< why there is no page, in English
    QString m_number;
    int m_generation = 0;
    bool m_wasRebuilt = false;
    bool m_isClosed = false;
    Work m_loading;
    Work m_reading;
};

} // namespace loom
