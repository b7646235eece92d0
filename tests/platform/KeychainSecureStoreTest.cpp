#include "platform/KeychainSecureStore.h"

#include "Session.h"

#include <QFile>

using namespace loom;

namespace
{

/// Starts the wallet of a desktop in the session, open.
std::unique_ptr<Child> openWallet(const Session& session)
{
    auto wallet = session.start(
        QStringLiteral("gnome-keyring-daemon"),
        {QStringLiteral("--foreground"), QStringLiteral("--unlock"), QStringLiteral("--components=secrets")});
    wallet->write("a password");
    wallet->closeInput();
    session.waitForService(QStringLiteral("org.freedesktop.secrets"));
    return wallet;
}

class KeychainSecureStoreTest : public testing::Test
{
protected:
    /// What the store answers to one call.
    [[nodiscard]] static QString ask(Child& running, const QByteArray& call)
    {
        running.write(call + '\n');
        return running.line();
    }

    Session session{Session::Bus::Present};
};

const QString nothing = QStringLiteral("nothing");
const QString stored = QStringLiteral("stored");
const QString failed = QStringLiteral("failed");

TEST_F(KeychainSecureStoreTest, ASecretIsKeptInTheWalletOfTheDesktop)
{
    const auto wallet = openWallet(session);
    {
        const auto running = session.probe({QStringLiteral("secrets")});
        EXPECT_EQ(ask(*running, "read lst_auth"), nothing);
        EXPECT_EQ(ask(*running, "store lst_auth 6f6c64"), stored);
        EXPECT_EQ(ask(*running, "store lst_auth 6100c3ff0a"), stored);
        EXPECT_EQ(ask(*running, "store other 62"), stored);
    }
    const auto next = session.probe({QStringLiteral("secrets")});
    EXPECT_EQ(ask(*next, "read lst_auth"), QStringLiteral("found 6100c3ff0a"));
    EXPECT_EQ(ask(*next, "remove lst_auth"), QStringLiteral("removed"));
    EXPECT_EQ(ask(*next, "read lst_auth"), nothing);
    EXPECT_EQ(ask(*next, "remove lst_auth"), QStringLiteral("removed"));
    EXPECT_EQ(ask(*next, "read other"), QStringLiteral("found 62"));
    next->closeInput();
    EXPECT_EQ(next->exitCode(), 0);
    wallet->crash();
}

TEST_F(KeychainSecureStoreTest, WithoutAWalletEveryCallFails)
{
    const auto running = session.probe({QStringLiteral("secrets")});
    for (const char* const call : {"store lst_auth 61", "read lst_auth", "remove lst_auth"})
        EXPECT_EQ(ask(*running, call), failed) << call;
}

} // namespace
