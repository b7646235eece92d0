#pragma once

#include "account/AccountContent.h"
#include "account/Profile.h"
#include "account/ProfileRules.h"

#include <QLocale>

namespace loom
{

class Clock;
class DataFolder;
class MarketStore;
class WidgetClient;

/// The customer's profile, and what they are about to change in it: a form that keeps what was typed until it is saved
/// or given up, and switches that are saved at once and go back where that fails. One per process; main thread.
class ProfileStore final : public loom::AccountContent // in full, as QML knows it
{
    Q_OBJECT
    Q_PROPERTY(QString email READ email NOTIFY changed)
    Q_PROPERTY(QString country READ country NOTIFY changed)
    Q_PROPERTY(QString memberSince READ memberSince NOTIFY changed)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY changed)
    Q_PROPERTY(QString phone READ phone WRITE setPhone NOTIFY changed)
    Q_PROPERTY(QString birthday READ birthday WRITE setBirthday NOTIFY changed)
    Q_PROPERTY(QDateTime birthdayDate READ birthdayDate NOTIFY changed)
    Q_PROPERTY(QString birthdayExample READ birthdayExample NOTIFY changed)
    Q_PROPERTY(QString place READ place NOTIFY changed)
    Q_PROPERTY(QString nameError READ nameError NOTIFY changed)
    Q_PROPERTY(QString phoneError READ phoneError NOTIFY changed)
    Q_PROPERTY(QString birthdayError READ birthdayError NOTIFY changed)
    Q_PROPERTY(bool isEdited READ isEdited NOTIFY changed)
    Q_PROPERTY(bool isSaving READ isSaving NOTIFY changed)
    Q_PROPERTY(bool wasSaved READ wasSaved NOTIFY changed)
    Q_PROPERTY(QString saveErrorText READ saveErrorText NOTIFY changed)
    Q_PROPERTY(bool wantsEmail READ wantsEmail NOTIFY changed)
    Q_PROPERTY(bool wantsMessages READ wantsMessages NOTIFY changed)
    Q_PROPERTY(QString newslettersErrorText READ newslettersErrorText NOTIFY changed)

public:
    ProfileStore(AuthStore& auth, Announcements& announcements, WidgetClient& widget, DataFolder& folder,
                 const MarketStore& market, Clock& clock, QObject* parent = nullptr);

    [[nodiscard]] const std::optional<Profile>& profile() const { return m_profile; }
    [[nodiscard]] QString email() const { return shown().email; }
    [[nodiscard]] QString country() const;
    /// The month, in words.
    [[nodiscard]] QString memberSince() const;

    // The form: what was typed, else what is known.

    [[nodiscard]] QString name() const { return m_name.value_or(shown().name); }
    void setName(const QString& name);
    [[nodiscard]] QString phone() const { return m_phone.value_or(shown().phone); }
    void setPhone(const QString& phone);
    /// As people of the shopper's place write it.
    [[nodiscard]] QString birthday() const;
    void setBirthday(const QString& text);
    Q_INVOKABLE void pickBirthday(int year, int month, int day);
    /// Not valid where what was typed is no date.
    [[nodiscard]] QDateTime birthdayDate() const;
    [[nodiscard]] QString birthdayExample() const;
    /// A page of the calendar; `month` counts from 1.
    [[nodiscard]] Q_INVOKABLE QString monthTitle(int year, int month) const;
    /// The locale by which dates are written.
    [[nodiscard]] QString place() const { return locale().name(); }

    [[nodiscard]] QString nameError() const { return flawText(checkName(name()), locale()); }
    [[nodiscard]] QString phoneError() const { return flawText(checkPhone(phone()), locale()); }
    [[nodiscard]] QString birthdayError() const;

    /// Something else than what is known was typed.
    [[nodiscard]] bool isEdited() const;
    /// Does nothing where a field is wrong.
    Q_INVOKABLE void save();
    Q_INVOKABLE void discard();
    [[nodiscard]] bool isSaving() const { return m_isSaving; }
    /// A change is on its way, of the form or of the switches.
    [[nodiscard]] bool isUpdating() const { return m_updating.isRunning(); }
    /// It was saved a moment ago.
    [[nodiscard]] bool wasSaved() const { return m_telling.isRunning(); }
    [[nodiscard]] QString saveErrorText() const;

    // The switches.

    [[nodiscard]] bool wantsEmail() const { return newsletters().email; }
    Q_INVOKABLE void setWantsEmail(bool wants);
    [[nodiscard]] bool wantsMessages() const { return newsletters().sms; }
    Q_INVOKABLE void setWantsMessages(bool wants);
    [[nodiscard]] QString newslettersErrorText() const;

Q_SIGNALS:
    void changed();

protected:
    [[nodiscard]] QCoro::Task<ApiResult<void>> fetch(std::stop_token stop) override;
    [[nodiscard]] bool restore() override;
    void clear() override;

private:
    [[nodiscard]] Profile shown() const { return m_profile.value_or(Profile()); }
    [[nodiscard]] Newsletters newsletters() const { return m_wanted.value_or(shown().newsletters); }
    [[nodiscard]] QLocale locale() const;
    [[nodiscard]] QDate today() const;
    [[nodiscard]] QDate birthdayTyped() const;
    void want(const Newsletters& wanted);
    void edited();
    void adopt(const Profile& profile);
    /// One change after the other, until the backend knows all.
    void tellBackend();
    [[nodiscard]] QCoro::Task<> tellChanges();
    [[nodiscard]] QCoro::Task<ApiResult<Profile>> update(QJsonObject change, std::stop_token stop);
    [[nodiscard]] QCoro::Task<> tellSaved();

    WidgetClient& m_widget;
    DataFolder& m_folder;
    const MarketStore& m_market;
    Clock& m_clock;
    std::optional<Profile> m_profile; ///< as the backend says
    std::optional<QString> m_name;    ///< typed, and not saved
    std::optional<QString> m_phone;
    std::optional<QString> m_birthday;
    std::optional<Newsletters> m_wanted; ///< on the way to the backend
    bool m_isSaving = false;
    std::optional<APIError> m_saveFailure;
    std::optional<APIError> m_newslettersFailure;
    Work m_updating;
    Work m_telling;
};

} // namespace loom
