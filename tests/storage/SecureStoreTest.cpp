#include "storage/ChosenSecureStore.h"
#include "storage/DataFolder.h"
#include "storage/FileSecureStore.h"
#include "storage/Preferences.h"

#include "support/FakeSecureStore.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace loom;

namespace
{

using Found = Result<std::optional<QByteArray>, QString>;
using Done = Result<void, QString>;
using Operation = FakeSecureStore::Operation;

const QString key = QStringLiteral("lst_auth");

TEST(FileSecureStore, ASecretIsKeptInAFileOfItsOwnerAlone)
{
    const QTemporaryDir home;
    const QString path = home.path() + QStringLiteral("/data/.secret-lst_auth");
    FileSecureStore store(home.path() + QStringLiteral("/data"));
    EXPECT_EQ(run(store.read(key)), Found(std::nullopt));
    EXPECT_TRUE(run(store.remove(key)));

    const QByteArray secret("a\0b\xFF", 4);
    ASSERT_TRUE(run(store.store(key, "another, and a longer one")));
    ASSERT_TRUE(run(store.store(key, secret)));
    QFile::setPermissions(path, QFile::permissions(path) | QFile::ReadGroup | QFile::ReadOther);
    EXPECT_EQ(run(store.read(key)), Found(secret));
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
              QFile::Permissions());
    EXPECT_EQ(run(FileSecureStore(home.path() + QStringLiteral("/data")).read(key)), Found(secret));

    ASSERT_TRUE(run(store.remove(key)));
    EXPECT_EQ(run(store.read(key)), Found(std::nullopt));
    EXPECT_FALSE(QFile::exists(path));

    // What is there but cannot be read, replaced or removed is a failure, and not the same as nothing.
    QDir().mkpath(path + QStringLiteral("/child"));
    EXPECT_FALSE(run(store.read(key)));
    EXPECT_FALSE(run(store.store(key, secret)));
    EXPECT_FALSE(run(store.remove(key)));
}

TEST(FileSecureStore, CallsTakeEffectInTheOrderInWhichTheyWereMade)
{
    const QTemporaryDir home;
    for (int i = 0; i < 15; ++i) {
        FileSecureStore store(home.path());
        // Nobody waits for these; the last one counts.
        static_cast<void>(store.store(key, QByteArray(100'000, 'x')));
        static_cast<void>(store.store(key, "last"));
        static_cast<void>(store.remove(QStringLiteral("other")));
        ASSERT_EQ(run(store.read(key)), Found(QByteArray("last")));
        static_cast<void>(store.store(key, QByteArray(100'000, 'x')));
        static_cast<void>(store.remove(key));
        ASSERT_EQ(run(store.read(key)), Found(std::nullopt));
    }
}

class ChosenSecureStoreTest : public testing::Test
{
protected:
    /// What the next start of the application makes, with stores that hold nothing yet.
    void start()
    {
        chosen.reset();
        preferences.emplace(folder);
        auto ownedSystem = std::make_unique<FakeSecureStore>();
        auto ownedFiles = std::make_unique<FakeSecureStore>();
        system = ownedSystem.get();
        files = ownedFiles.get();
        chosen = std::make_unique<ChosenSecureStore>(*preferences, std::move(ownedSystem), std::move(ownedFiles));
    }
    void SetUp() override { start(); }

    [[nodiscard]] QString choice() const { return preferences->value(preferences::secureStore); }

    QTemporaryDir home;
    DataFolder folder{home.path()};
    std::optional<Preferences> preferences;
    FakeSecureStore* system = nullptr;
    FakeSecureStore* files = nullptr;
    std::unique_ptr<ChosenSecureStore> chosen;
};

TEST_F(ChosenSecureStoreTest, FilesAreChosenWhenTheSystemsStoreRefuses)
{
    for (const Operation refused : {Operation::Store, Operation::Read}) {
        start();
        system->setFailing(refused);
        ASSERT_TRUE(run(chosen->store(key, "secret")));
        EXPECT_EQ(choice(), QStringLiteral("file"));
        EXPECT_EQ(files->secrets().value(key), "secret");
        EXPECT_TRUE(system->secrets().isEmpty());
        preferences->remove(preferences::secureStore);
    }
    start();
    system->setFailing(Operation::Remove);
    ASSERT_TRUE(run(chosen->store(key, "secret")));
    EXPECT_EQ(choice(), QStringLiteral("system"));
}

TEST_F(ChosenSecureStoreTest, TheChoiceIsMadeOnceAndStaysWhateverHappensLater)
{
    ASSERT_TRUE(run(chosen->store(key, "secret")));
    start();
    system->setFailing(Operation::Store);
    system->setFailing(Operation::Read);
    EXPECT_FALSE(run(chosen->read(key)));
    EXPECT_FALSE(run(chosen->store(key, "other")));
    EXPECT_EQ(choice(), QStringLiteral("system"));
    EXPECT_TRUE(files->calls().isEmpty());
    EXPECT_EQ(system->calls(), QStringList({QStringLiteral("read lst_auth"), QStringLiteral("store lst_auth")}));

    preferences->set(preferences::secureStore, QStringLiteral("file"));
    start();
    ASSERT_TRUE(run(chosen->store(key, "secret")));
    EXPECT_EQ(files->secrets().value(key), "secret");
    EXPECT_TRUE(system->calls().isEmpty());
}

TEST_F(ChosenSecureStoreTest, CallsThatComeWhileAWalletIsOpenedShareOneChoice)
{
    system->setHolding(true);
    Running<Done> storing(chosen->store(key, "secret"));
    Running<Found> reading(chosen->read(QStringLiteral("other")));
    Running<Done> removing(chosen->remove(QStringLiteral("other")));
    EXPECT_FALSE(storing.isDone());
    EXPECT_TRUE(choice().isEmpty());
    while (system->waiting() > 0)
        system->release();
    EXPECT_TRUE(storing.result());
    EXPECT_EQ(reading.result(), Found(std::nullopt));
    EXPECT_TRUE(removing.result());
    EXPECT_EQ(choice(), QStringLiteral("system"));
    EXPECT_EQ(system->secrets(), (QMap<QString, QByteArray>{{key, "secret"}}));
    EXPECT_EQ(system->calls().filter(QStringLiteral("store lst_probe")).size(), 1);
}

TEST_F(ChosenSecureStoreTest, ACallGoesOnWhenItsStoreIsGone)
{
    for (const bool arePreferencesGone : {false, true}) {
        start();
        preferences->remove(preferences::secureStore);
        system->setHolding(true);
        Running<Done> storing(chosen->store(key, "secret"));
        Running<Found> reading(chosen->read(key));
        chosen.reset();
        if (arePreferencesGone)
            preferences.reset();
        while (!storing.isDone() || !reading.isDone()) {
            ASSERT_GT(system->waiting(), 0);
            system->release();
        }
        EXPECT_TRUE(storing.result());
        EXPECT_EQ(reading.result(), Found(QByteArray("secret")));
        if (preferences)
            EXPECT_EQ(choice(), QStringLiteral("system"));
    }
}

} // namespace
