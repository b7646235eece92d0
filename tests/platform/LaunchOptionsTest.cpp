#include "platform/LaunchOptions.h"

#include "platform/WindowActivation.h"

#include "support/NetworkFixture.h"

#include <QDir>
#include <QFile>
#include <QSslCertificate>
#include <QSslConfiguration>

using namespace loom;

namespace
{

QStringList texts(std::initializer_list<const char*> list)
{
    QStringList result;
    for (const char* const text : list)
        result.append(QString::fromUtf8(text));
    return result;
}

TEST(LaunchOptionsTest, OptionsAreForWhoeverStartsTheProgramAndLinksAreOnlyEverLinks)
{
    struct Row {
        QStringList arguments;
        QStringList links;
        const char* authority;
        const char* screenshot;
    };
    for (const Row& row : {
             Row{texts({"/products/a", "", "/products/b c"}), texts({"/products/a", "", "/products/b c"}), "", ""},
             Row{texts({"--ca-file", "a.pem", "--screenshot=a.png", "/products/a"}), texts({"/products/a"}), "a.pem",
                 "a.png"},
             Row{texts({"--ca-file", "--screenshot"}), {}, "--screenshot", ""},
             // what a page or a message may write into a link
             Row{texts({"loomstreet://a --ca-file=evil.pem"}), texts({"loomstreet://a --ca-file=evil.pem"}), "", ""},
             Row{texts({"--", "--ca-file=evil.pem", "--help", "-x"}), texts({"--ca-file=evil.pem", "--help", "-x"}), "",
                 ""},
             Row{texts({"--ca-file=a.pem", "--", "--", "--ca-file=evil.pem"}), texts({"--", "--ca-file=evil.pem"}),
                 "a.pem", ""},
         }) {
        const LaunchOptions options = readLaunchOptions(QStringList(QStringLiteral("loomstreet")) + row.arguments);
        EXPECT_EQ(options.links, row.links);
        EXPECT_EQ(options.authorityFile, QLatin1String(row.authority)) << testing::PrintToString(row.arguments);
        EXPECT_EQ(options.screenshotFile, QLatin1String(row.screenshot)) << testing::PrintToString(row.arguments);
    }
}

TEST(LaunchOptionsTest, WhatFollowsTheDashesIsKeptFromTheLibrariesToo)
{
    const std::array given{"loomstreet", "--action", "bag", "--", "-platformpluginpath", "--"};
    EXPECT_EQ(countOfOptions(static_cast<int>(given.size()), given.data()), 3);
    EXPECT_EQ(countOfOptions(2, given.data()), 2);
    EXPECT_EQ(readLaunchOptions(texts({"loomstreet", "--action", "bag", "--", "--service"})).action,
              QStringLiteral("bag"));
    EXPECT_FALSE(readLaunchOptions(texts({"loomstreet", "--", "--service"})).isService);
    EXPECT_TRUE(readLaunchOptions(texts({"loomstreet", "--pseudo-language"})).isPseudoLanguage);
    EXPECT_FALSE(readLaunchOptions(texts({"loomstreet", "--", "--pseudo-language"})).isPseudoLanguage);
    EXPECT_EQ(WindowActivation::timeOf(QStringLiteral("a_TIME1-host_TIME4294967295")), 4294967295U);
    for (const char* const id : {"", "host-77", "host_TIME", "host_TIME-1", "host_TIME4294967296", "host_TIME1x"})
        EXPECT_EQ(WindowActivation::timeOf(QLatin1String(id)), 0U) << id;
}

TEST(LaunchOptionsTest, WhatAStartIsForIsKnownWithoutAnApplicationAndAmongOptionsOfTheLibraries)
{
    using Purpose = LaunchOptions::Purpose;
    struct Row {
        QStringList arguments;
        Purpose purpose;
        const char* action;
        bool isSafeMode;
        bool hasProblem;
    };
    for (const Row& row : {
             Row{{}, Purpose::Start, "", false, false},
             Row{texts({"/a", "--new-window", "--safe-mode"}), Purpose::Start, "new-window", true, false},
             Row{texts({"--quit", "--new-window"}), Purpose::Quit, "new-window", false, false},
             Row{texts({"--action", "quit"}), Purpose::Quit, "quit", false, false},
             Row{texts({"--quit", "-h"}), Purpose::Help, "", false, false},
             Row{texts({"-v"}), Purpose::Version, "", false, false},
             // the letters of a library's option are none of ours
             Row{texts({"-qwindowtitle", "hv", "--safe-mode"}), Purpose::Start, "", true, true},
             Row{texts({"--ca-file", "--help"}), Purpose::Start, "", false, false},
             Row{texts({"--", "--help", "--quit", "--safe-mode"}), Purpose::Start, "", false, false},
             Row{texts({"--insecure"}), Purpose::Start, "", false, true},
             Row{texts({"--ignore-certificate-errors", "--quit"}), Purpose::Quit, "", false, true},
             Row{texts({"-k"}), Purpose::Start, "", false, true},
             Row{texts({"--ca-file"}), Purpose::Start, "", false, true},
             Row{texts({"--safe-mode=no"}), Purpose::Start, "", true, true},
         }) {
        const LaunchOptions options = readLaunchOptions(QStringList(QStringLiteral("loomstreet")) + row.arguments);
        EXPECT_EQ(options.purpose, row.purpose) << testing::PrintToString(row.arguments);
        EXPECT_EQ(options.action, QLatin1String(row.action)) << testing::PrintToString(row.arguments);
        EXPECT_EQ(options.isSafeMode, row.isSafeMode) << testing::PrintToString(row.arguments);
        EXPECT_EQ(!options.problem.isEmpty(), row.hasProblem) << testing::PrintToString(row.arguments);
    }
}

/// Nothing but the system's authorities are trusted at first.
class AuthorityTest : public NetworkFixture
{
protected:
    AuthorityTest()
    {
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        QList<QSslCertificate> others;
        for (const QSslCertificate& authority : configuration.caCertificates()) {
            if (authority.subjectInfo(QSslCertificate::CommonName).contains(QStringLiteral("LOOMSTREET tests")))
                pem = authority.toPem();
            else
                others.append(authority);
        }
        configuration.setCaCertificates(others);
        QSslConfiguration::setDefaultConfiguration(configuration);
        server.allow("GET /", [](const ReceivedRequest&) { return Answer::body("here"); });
    }
    ~AuthorityTest() override { QSslConfiguration::setDefaultConfiguration(trusting); }

    [[nodiscard]] QString put(const char* name, const QByteArray& bytes) const
    {
        QFile file(home.path() + QLatin1Char('/') + QLatin1String(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            ADD_FAILURE() << "cannot write " << name;
        return file.fileName();
    }
    [[nodiscard]] bool isReached()
    {
        HttpTransport fresh(clock, network);
        return run(fresh.send({.url = server.url(QStringLiteral("/"))}, {})).hasValue();
    }

    const QSslConfiguration trusting = QSslConfiguration::defaultConfiguration();
    QByteArray pem;
    QTemporaryDir home;
};

TEST_F(AuthorityTest, AnAuthorityFromAFileIsTrustedBesideTheOthers)
{
    ASSERT_FALSE(pem.isEmpty());
    EXPECT_FALSE(isReached());
    const QSslCertificate other = serverConfiguration(Credentials::OtherHost).localCertificate();
    EXPECT_TRUE(addCertificateAuthority(put("other.pem", other.toPem())));
    EXPECT_FALSE(isReached());
    EXPECT_TRUE(addCertificateAuthority(put("ca.pem", "A text before it.\n" + pem)));
    EXPECT_TRUE(QSslConfiguration::defaultConfiguration().caCertificates().contains(other));
    EXPECT_TRUE(isReached());
}

TEST_F(AuthorityTest, AFileWithoutAnAuthorityIsRefusedAndItsNeighboursAreNotTakenForIt)
{
    const QSslConfiguration before = QSslConfiguration::defaultConfiguration();
    static_cast<void>(put("missing.pem.old", pem));
    QDir(home.path()).mkdir(QStringLiteral("folder"));
    static_cast<void>(put("folder/ca.pem", pem));
    for (const QString& file : {home.path() + QStringLiteral("/missing.pem"), home.path() + QStringLiteral("/folder"),
                                home.path() + QStringLiteral("/folder/*.pem"), put("empty.pem", ""),
                                put("garbage.pem", QByteArray(5000, '\xff')), put("cut.pem", pem.left(pem.size() / 2)),
                                put("broken.pem", QByteArray(pem).replace("\nM", "\n!")), QString()}) {
        EXPECT_FALSE(addCertificateAuthority(file)) << file.toStdString();
        EXPECT_EQ(QSslConfiguration::defaultConfiguration(), before) << file.toStdString();
    }
    EXPECT_FALSE(isReached());
}

} // namespace
