#include "account/ProfileStore.h"

#include "AccountFixture.h"
#include "catalog/MarketStore.h"
#include "catalog/StorefrontAPI.h"
#include "catalog/StorefrontClient.h"

using namespace loom;
using namespace std::chrono_literals;

namespace
{

const QString jane = QStringLiteral("jane@mail.example");

QJsonObject profileJson(const QString& email = jane)
{
    return {{QStringLiteral("profile"),
             QJsonObject{{QStringLiteral("email"), email},
                         {QStringLiteral("name"), QStringLiteral("Jane")},
                         {QStringLiteral("birthday"), QStringLiteral("1991-04-30")},
                         {QStringLiteral("newsletters"),
                          QJsonObject{{QStringLiteral("email"), true}, {QStringLiteral("sms"), false}}},
                         {QStringLiteral("memberSince"), QStringLiteral("2024-03-09T08:07:06Z")}}}};
}

class ProfileStoreTest : public AccountFixture
{
protected:
    ProfileStoreTest()
    {
        auth.load();
        drainEvents();
        server.allow(path("/shopify-checkout/revoke"), [](auto&) { return Answer::json({}); });
        make();
    }
    ~ProfileStoreTest() override
    {
        profile.reset();
        drainEvents();
    }

    void make() { profile = std::make_unique<ProfileStore>(auth, announcements, auth.widget(), folder, market, clock); }
    void begin()
    {
        server.expect(path("/profile"), Answer::json(profileJson()));
        profile->show();
        ASSERT_TRUE(signInAs(auth, jane));
        waitUntil([this] { return profile->phase() == AccountContent::Phase::Ready; }, "the profile");
    }
    /// Waits for the answer to the change that is on its way.
    void settle()
    {
        waitUntil([this] { return !profile->isUpdating(); }, "the change");
    }

    SystemLocale locale{.language = QStringLiteral("en"), .script = {}, .region = QStringLiteral("US")};
    StorefrontClient client{server.host(), QStringLiteral("token-1"), locale, transport, clock};
    StorefrontAPI api{client};
    MarketStore market{{.country = QStringLiteral("US")}, client, api, folder, preferences, clock};
    AuthStore auth{services()};
    std::unique_ptr<ProfileStore> profile;
};

TEST_F(ProfileStoreTest, WhatWasTypedStaysUntilItIsSaved)
{
    begin();
    EXPECT_EQ(profile->birthday(), QStringLiteral("4/30/1991"));
    EXPECT_EQ(profile->memberSince(), QStringLiteral("March 2024"));
    EXPECT_FALSE(profile->isEdited());
    profile->setName(QStringLiteral("Jane Doe "));
    profile->setBirthday(QStringLiteral("5/1/91"));
    profile->save();
    EXPECT_FALSE(profile->isSaving()) << "a field is wrong";
    profile->setBirthday(QStringLiteral("5/1/1991"));

    server.expect(path("/profile"), Answer::json(profileJson()));
    profile->reload();
    waitUntil([this] { return !profile->isLoading(); }, "the profile");
    EXPECT_EQ(profile->name(), QStringLiteral("Jane Doe "));

    server.expect(path("/profile-update"), refused(400, QStringLiteral("BAD_INPUT")));
    profile->save();
    EXPECT_TRUE(profile->isSaving());
    settle();
    EXPECT_TRUE(profile->saveErrorText().contains(QStringLiteral("not accepted")));
    EXPECT_TRUE(profile->isEdited());

    QJsonObject saved = profileJson().value(QStringLiteral("profile")).toObject();
    saved.insert(QStringLiteral("name"), QStringLiteral("Jane Doe"));
    server.expect(path("/profile-update"), Answer::json({{QStringLiteral("profile"), saved}}));
    profile->save();
    settle();
    const QJsonObject sent = server.requests().back().json();
    EXPECT_EQ(sent.value(QStringLiteral("name")), QStringLiteral("Jane Doe"));
    EXPECT_EQ(sent.value(QStringLiteral("birthday")), QStringLiteral("1991-05-01"));
    EXPECT_FALSE(sent.contains(QStringLiteral("newsletters")));
    EXPECT_FALSE(profile->isEdited());
    EXPECT_EQ(auth.name(), QStringLiteral("Jane Doe"));
    EXPECT_TRUE(secrets.secrets().value(QStringLiteral("lst_auth")).contains("Jane Doe"));
    EXPECT_TRUE(profile->wasSaved());
    clock.advance(4s);
    EXPECT_FALSE(profile->wasSaved());
}

TEST_F(ProfileStoreTest, ASwitchIsSavedAtOnceAndGoesBackWhenThatFails)
{
    begin();
    profile->setName(QStringLiteral("Somebody"));
    server.expect(path("/profile-update"), refused(500, QStringLiteral("OOPS")));
    profile->setWantsEmail(false);
    EXPECT_FALSE(profile->wantsEmail());
    settle();
    EXPECT_EQ(server.requests().back().json().keys(),
              (QStringList{QStringLiteral("appToken"), QStringLiteral("newsletters"), QStringLiteral("publicKey")}));
    EXPECT_TRUE(profile->wantsEmail());
    EXPECT_FALSE(profile->newslettersErrorText().isEmpty());
    EXPECT_EQ(profile->name(), QStringLiteral("Somebody"));
}

TEST_F(ProfileStoreTest, WhatWasKeptShowsToItsOwnerAloneAndGoesWithTheSession)
{
    begin();
    make();
    server.expect(path("/profile"), Answer::drop());
    profile->show();
    EXPECT_EQ(profile->phase(), AccountContent::Phase::Ready);
    EXPECT_EQ(profile->email(), jane);
    waitUntil([this] { return !profile->isLoading(); }, "the failure");
    profile->setName(QStringLiteral("Somebody"));
    auth.signOut();
    EXPECT_EQ(profile->phase(), AccountContent::Phase::NeedsAccount);
    EXPECT_EQ(profile->name(), QString());
    folder.waitUntilWritten();
    EXPECT_FALSE(folder.read(QStringLiteral("snap-profile")));

    folder.saveSnapshot(QStringLiteral("snap-profile"),
                        profileJson(QStringLiteral("mary@mail.example")).value(QStringLiteral("profile")), clock.now());
    server.expect(path("/profile"), Answer::drop());
    ASSERT_TRUE(signInAs(auth, jane));
    EXPECT_NE(profile->email(), QStringLiteral("mary@mail.example"));
    waitUntil([this] { return profile->phase() == AccountContent::Phase::Failed; }, "the failure");
}

TEST(ProfileRulesTest, ADayIsReadInTheOrderOfThePlace)
{
    const QDate day(1991, 4, 5);
    const struct {
        const char* place;
        const char* text;
        QDate read;
    } table[]{
        {"en_US", "4/5/1991", day},
        {"en_US", "04 05 1991", day},
        {"en_GB", "05/04/1991", day},
        {"de_DE", "5.4.1991", day},
        {"ja_JP", "1991/04/05", day},
        {"de_DE", "1991-04-05", day},
        {"ar_SA", "٥‏/٤‏/١٩٩١", day},
        {"en_US", "4/5/91", {}},
        {"en_US", "13/5/1991", {}},
        {"de_DE", "29.2.1991", {}},
        {"en_US", "4/5", {}},
        {"en_US", "4/5/1991/2", {}},
        {"en_US", "April 5th, 1991", {}},
        {"en_US", "99999999999999999999/5/1991", {}},
    };
    for (const auto& [place, text, read] : table)
        EXPECT_EQ(parseDay(QString::fromUtf8(text), QLocale(QString::fromLatin1(place))), read) << place << " " << text;
    for (const char* const place : {"en_US", "de_DE", "ar_EG", "ko_KR", "hu_HU", "hr_HR", "zh_Hans_CN", "th_TH"}) {
        const QLocale locale(QString::fromLatin1(place));
        EXPECT_EQ(parseDay(dayText(day, locale), locale), day) << place;
    }
}

TEST(ProfileRulesTest, MonthAndYearStandInTheOrderOfThePlace)
{
    struct Row {
        const char* place;
        const char* inSentence;
        const char* onItsOwn;
    };
    for (const Row& row : {
             Row{"en_US", "April 1991", "April 1991"},
             Row{"de_AT", "April 1991", "April 1991"},
             Row{"pl_PL", "kwietnia 1991", "kwiecień 1991"},
             Row{"pt_BR", "abril de 1991", "abril de 1991"},
             Row{"hu_HU", "1991. április", "1991. április"},
             Row{"ja_JP", "1991年4月", "1991年4月"},
             Row{"ko_KR", "1991년 4월", "1991년 4월"},
             Row{"th_TH", "เมษายน 1991", "เมษายน 1991"},
         }) {
        const QLocale locale(QString::fromLatin1(row.place));
        EXPECT_EQ(monthText(QDate(1991, 4, 30), locale, MonthForm::InSentence), QString::fromUtf8(row.inSentence));
        EXPECT_EQ(monthText(QDate(1991, 4, 30), locale, MonthForm::OnItsOwn), QString::fromUtf8(row.onItsOwn));
    }
}

TEST(ProfileRulesTest, FieldsAreCheckedBeforeTheyAreSent)
{
    EXPECT_EQ(checkName(QString(100, QLatin1Char('a'))), ProfileFlaw::None);
    EXPECT_EQ(checkName(QString(101, QLatin1Char('a'))), ProfileFlaw::NameTooLong);
    for (const char* const phone : {"", "  ", "+1 (212) 555-0100", "02125550100"})
        EXPECT_EQ(checkPhone(QString::fromLatin1(phone)), ProfileFlaw::None) << phone;
    for (const char* const phone : {"+", "12", "555-CALL", "1234567890123456789012345678901", "555.0100"})
        EXPECT_EQ(checkPhone(QString::fromLatin1(phone)), ProfileFlaw::NotAPhone) << phone;
    const QLocale place(QStringLiteral("en_US"));
    const QDate today(2026, 3, 9);
    const auto check = [&](const char* text) {
        return checkBirthday(QString::fromLatin1(text), place, today);
    };
    EXPECT_EQ(check(""), ProfileFlaw::None);
    EXPECT_EQ(check("3/8/2026"), ProfileFlaw::None);
    EXPECT_EQ(check("3/9/2026"), ProfileFlaw::NotInThePast);
    EXPECT_EQ(check("1/1/1899"), ProfileFlaw::NotADate);
    EXPECT_EQ(check("yesterday"), ProfileFlaw::NotADate);
}

} // namespace
