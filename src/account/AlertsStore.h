#pragma once

#include "account/AccountContent.h"
#include "account/AlertsModel.h"

#include <deque>

namespace loom
{

class MoneyFormat;
class WidgetClient;

/// What the shopper asked to be told of. A change shows at once, travels to the backend behind those before it, and is
/// taken back when it fails. Keeps nothing on this machine. One per process; main thread.
class AlertsStore final : public loom::AccountContent // in full, as QML knows it
{
    Q_OBJECT
    Q_PROPERTY(loom::AlertsModel* list READ list CONSTANT)
    Q_PROPERTY(QString changeErrorText READ changeErrorText NOTIFY changed)
    Q_PROPERTY(int removedCount READ removedCount NOTIFY changed)
    Q_PROPERTY(QString removedTitle READ removedTitle NOTIFY changed)

public:
    AlertsStore(AuthStore& auth, Announcements& announcements, WidgetClient& widget, const MoneyFormat& money,
                QObject* parent = nullptr);

    [[nodiscard]] AlertsModel* list() { return &m_list; }
    [[nodiscard]] bool contains(const AlertSubject& subject) const;
    [[nodiscard]] const AuthStore& account() const { return auth(); }

    /// `alert` says what to show until the backend answers; its subject is what counts. Of a guest the wish is kept
    /// until somebody signs in, and false is returned: ask them to. One wish is kept at a time.
    bool add(const Alert& alert);
    void remove(const AlertSubject& subject);
    /// Of the wish that waits for a sign-in; nobody signed in.
    Q_INVOKABLE void dropWish();
    [[nodiscard]] const std::optional<Alert>& wish() const { return m_wish; }

    /// Takes a row out in such a way that it can be put back.
    Q_INVOKABLE void removeRow(int row);
    [[nodiscard]] int removedCount() const { return static_cast<int>(m_removed.size()); }
    [[nodiscard]] QString removedTitle() const;
    Q_INVOKABLE void undoRemoval();
    Q_INVOKABLE void forgetRemoval();

    /// A change is on its way.
    [[nodiscard]] bool isChanging() const { return m_changing.isRunning(); }
    /// Why the last change was taken back; empty when it was not.
    [[nodiscard]] QString changeErrorText() const;
    /// The change that was taken back.
    [[nodiscard]] const std::optional<AlertSubject>& refused() const { return m_refused; }
    Q_INVOKABLE void forgetChangeError();

Q_SIGNALS:
    void changed();

protected:
    [[nodiscard]] QCoro::Task<ApiResult<void>> fetch(std::stop_token stop) override;
    [[nodiscard]] bool restore() override { return false; }
    void clear() override;

private:
    /// A change on its way, or waiting for those before it.
    struct Change {
        bool adds = true;
        Alert alert;
        std::size_t place = 0; ///< of what is added, in the list
    };
    struct Removed {
        Alert alert;
        std::size_t place = 0;
    };

    void make(Change change);
    [[nodiscard]] QCoro::Task<> carryOut();
    [[nodiscard]] QCoro::Task<ApiResult<void>> tell(Change change, std::stop_token stop);
    void carryOutWish();
    /// The list with what is on its way.
    void showAll();

    WidgetClient& m_widget;
    AlertsModel m_list;
    std::vector<Alert> m_alerts; ///< as the backend says
    std::deque<Change> m_changes;
    std::vector<Removed> m_removed;
    std::optional<Alert> m_wish;
    std::optional<AlertSubject> m_refused;
    std::optional<APIError> m_changeFailure;
    Work m_changing;
};

} // namespace loom
