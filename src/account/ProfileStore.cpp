#include "account/ProfileStore.h"

#include "account/AuthStore.h"
#include "base/Clock.h"
#include "catalog/CountryNames.h"
#include "catalog/MarketStore.h"
#include "net/WidgetClient.h"
#include "storage/DataFolder.h"

#include <QCoreApplication>

namespace loom
{

using namespace std::chrono_literals;

namespace
{

constexpr std::chrono::seconds savedDuration = 4s;

const QString fileName = QStringLiteral("snap-profile");

bool isBadInput(const APIError& error)
{
    const auto* const http = error.as<APIError::Http>();
    return http && http->code == QLatin1String("BAD_INPUT");
}

ApiResult<Profile> readAnswer(const QByteArray& body)
{
    return decodedAnswer(
        decodeJson(body, [](const JsonReader& json) { return decodeProfile(json.object("profile")); }));
}

} // namespace

ProfileStore::ProfileStore(AuthStore& auth, Announcements& announcements, WidgetClient& widget, DataFolder& folder,
                           const MarketStore& market, Clock& clock, QObject* parent)
    : AccountContent(auth, announcements, {fileName}, parent)
    , m_widget(widget)
    , m_folder(folder)
    , m_market(market)
    , m_clock(clock)
    , m_updating([this] { Q_EMIT changed(); })
    , m_telling([this] { Q_EMIT changed(); })
{
    connect(&market, &MarketStore::revisionChanged, this, &ProfileStore::changed);
}

QLocale ProfileStore::locale() const
{
    const QLocale own = appLocale(m_market.context().language);
    const QLocale place(m_market.languageCode().replace(QLatin1Char('-'), QLatin1Char('_')) + QLatin1Char('_') +
                        m_market.country());
    // The figures are those of everything else in the window.
    return place.zeroDigit() == own.zeroDigit() ? place : own;
}

QDate ProfileStore::today() const
{
    return m_clock.now().toLocalTime().date();
}

QString ProfileStore::country() const
{
    const QString code = shown().country;
    return code.isEmpty() ? QString() : countryNameIn(m_market.context().language, code);
}

QString ProfileStore::memberSince() const
{
    const auto since = shown().memberSince;
    return since ? monthText(since->toLocalTime().date(), locale(), MonthForm::InSentence) : QString();
}

QString ProfileStore::monthTitle(int year, int month) const
{
    return monthText(QDate(year, month, 1), locale(), MonthForm::OnItsOwn);
}

void ProfileStore::setName(const QString& name)
{
    m_name = name;
    edited();
}

void ProfileStore::setPhone(const QString& phone)
{
    m_phone = phone;
    edited();
}

QString ProfileStore::birthday() const
{
    const QDate day = shown().birthday;
    return m_birthday.value_or(day.isValid() ? dayText(day, locale()) : QString());
}

void ProfileStore::setBirthday(const QString& text)
{
    m_birthday = text;
    edited();
}

void ProfileStore::pickBirthday(int year, int month, int day)
{
    setBirthday(dayText(QDate(year, month, day), locale()));
}

QDate ProfileStore::birthdayTyped() const
{
    return m_birthday ? parseDay(*m_birthday, locale()) : shown().birthday;
}

QDateTime ProfileStore::birthdayDate() const
{
    const QDate day = birthdayTyped();
    return day.isValid() ? day.startOfDay() : QDateTime();
}

QString ProfileStore::birthdayExample() const
{
    return exampleDayText(locale());
}

QString ProfileStore::birthdayError() const
{
    return flawText(checkBirthday(birthday(), locale(), today()), locale());
}

bool ProfileStore::isEdited() const
{
    const Profile known = shown();
    return name().trimmed() != known.name || phone().trimmed() != known.phone || birthdayTyped() != known.birthday ||
           (m_birthday && !m_birthday->trimmed().isEmpty() && !birthdayTyped().isValid());
}

void ProfileStore::edited()
{
    m_telling.stop();
    m_saveFailure.reset();
    Q_EMIT changed();
}

void ProfileStore::discard()
{
    m_name.reset();
    m_phone.reset();
    m_birthday.reset();
    edited();
}

void ProfileStore::save()
{
    const bool isRight = nameError().isEmpty() && phoneError().isEmpty() && birthdayError().isEmpty();
    if (!m_profile || m_isSaving || !isRight)
        return;
    m_isSaving = true;
    edited();
    tellBackend();
}

QString ProfileStore::saveErrorText() const
{
    if (!m_saveFailure)
        return {};
    return isBadInput(*m_saveFailure)
               ? QCoreApplication::translate("Loomstreet", "Something you entered was not accepted. Check it and try "
                                                           "again.")
               : errorDescription(*m_saveFailure);
}

void ProfileStore::setWantsEmail(bool wants)
{
    want({.email = wants, .sms = newsletters().sms});
}

void ProfileStore::setWantsMessages(bool wants)
{
    want({.email = newsletters().email, .sms = wants});
}

void ProfileStore::want(const Newsletters& wanted)
{
    if (!m_profile)
        return;
    m_wanted = wanted;
    m_newslettersFailure.reset();
    Q_EMIT changed();
    tellBackend();
}

QString ProfileStore::newslettersErrorText() const
{
    return m_newslettersFailure ? errorDescription(*m_newslettersFailure) : QString();
}

void ProfileStore::tellBackend()
{
    if (!m_updating.isRunning())
        static_cast<void>(tellChanges());
}

QCoro::Task<> ProfileStore::tellChanges()
{
    const Work::Run run = m_updating.begin();
    while (m_isSaving || m_wanted) {
        const bool savesForm = m_isSaving;
        const auto typed = std::tuple(m_name, m_phone, m_birthday);
        const auto wanted = m_wanted;
        QJsonObject change;
        if (savesForm) {
            change = {{QStringLiteral("name"), name().trimmed()},
                      {QStringLiteral("phone"), phone().trimmed()},
                      {QStringLiteral("birthday"), birthdayTyped().toString(Qt::ISODate)}};
        } else {
            change.insert(QStringLiteral("newsletters"), toJson(*wanted));
        }
        const ApiResult<Profile> answer = co_await update(change, run.stop());
        if (run.isStopped())
            co_return;
        if (answer)
            adopt(*answer);
        const std::optional<APIError> failure =
            answer || answer.error().isCancelled() ? std::nullopt : std::optional(answer.error().error());
        if (savesForm) {
            m_isSaving = false;
            m_saveFailure = failure;
            // What was typed since stays.
            if (answer && typed == std::tuple(m_name, m_phone, m_birthday)) {
                discard();
                static_cast<void>(tellSaved());
            }
        } else if (failure || wanted == m_wanted) {
            m_wanted.reset();
            m_newslettersFailure = failure;
        }
        Q_EMIT changed();
    }
    // An answer that was asked for before the changes may not know of them.
    if (isLoading())
        reload();
}

QCoro::Task<ApiResult<Profile>> ProfileStore::update(QJsonObject change, std::stop_token stop)
{
    LOOM_CO_TRY(body, co_await m_widget.post(QStringLiteral("/profile-update"), change, {}, stop));
    co_return readAnswer(body);
}

QCoro::Task<> ProfileStore::tellSaved()
{
    const Work::Run run = m_telling.begin();
    co_await m_clock.sleep(savedDuration, run.stop());
}

void ProfileStore::adopt(const Profile& profile)
{
    m_profile = profile;
    m_folder.saveSnapshot(fileName, toJson(profile), m_clock.now());
    auth().rename(profile.name);
    Q_EMIT changed();
}

QCoro::Task<ApiResult<void>> ProfileStore::fetch(std::stop_token stop)
{
    LOOM_CO_TRY(body, co_await m_widget.post(QStringLiteral("/profile"), {}, {}, stop));
    if (stop.stop_requested())
        co_return Unexpected(Failure(Cancelled()));
    LOOM_CO_TRY(profile, readAnswer(body));
    adopt(profile);
    co_return ApiResult<void>();
}

bool ProfileStore::restore()
{
    const auto saved = m_folder.loadSnapshot(fileName, decodeProfile);
    // Of somebody else only where the application ended before it could remove the file.
    if (!saved || saved->value.email.compare(auth().email(), Qt::CaseInsensitive) != 0)
        return false;
    m_profile = saved->value;
    Q_EMIT changed();
    return true;
}

void ProfileStore::clear()
{
    m_updating.stop();
    m_telling.stop();
    m_isSaving = false;
    m_profile.reset();
    m_wanted.reset();
    m_newslettersFailure.reset();
    discard();
}

} // namespace loom
