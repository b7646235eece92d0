#include "release/ReleaseCheck.h"

#include "Files.h"

#include <QCryptographicHash>
#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <sys/stat.h>

using namespace loom;

namespace
{

void minisign(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral("minisign"), arguments);
    ASSERT_TRUE(process.waitForFinished()) << process.errorString().toStdString();
    ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
}

/// An image that a publisher has signed with minisign, and a stranger beside them.
class ReleaseCheckTest : public testing::Test
{
protected:
    void SetUp() override
    {
        for (const QString& owner : {QStringLiteral("publisher"), QStringLiteral("stranger")})
            minisign({QStringLiteral("-G"), QStringLiteral("-W"), QStringLiteral("-p"),
                      file(owner + QStringLiteral(".pub")), QStringLiteral("-s"), file(owner)});
        writeFile(image, content);
        claims = {.sha256 = QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex()),
                  .size = content.size(),
                  .signature = signatureBy(QStringLiteral("publisher")),
                  .publicKey = contentOf(file(QStringLiteral("publisher.pub")))};
    }

    [[nodiscard]] QString file(const QString& name) const { return folder.filePath(name); }

    [[nodiscard]] QByteArray signatureBy(const QString& owner, const QByteArray& of = content,
                                         const QStringList& options = {})
    {
        const QString subject = file(QStringLiteral("subject"));
        writeFile(subject, of);
        minisign(QStringList{QStringLiteral("-S"), QStringLiteral("-s"), file(owner), QStringLiteral("-m"), subject,
                             QStringLiteral("-t"), QStringLiteral("LOOMSTREET 1.5.0 build 320")} +
                 options);
        return contentOf(subject + QStringLiteral(".minisig"));
    }

    [[nodiscard]] static std::optional<ReleaseFlaw> flaw(const QString& path, const ReleaseClaims& claimed,
                                                         const std::stop_token& stop = {})
    {
        const auto checked = checkRelease(path, claimed, stop);
        return checked ? std::nullopt : std::optional(checked.error());
    }

    inline static const QByteArray content = QByteArray("hsqs") + QByteArray(300'000, '\x5a');
    QTemporaryDir folder;
    QString image = file(QStringLiteral("image"));
    ReleaseClaims claims;
};

} // namespace

TEST_F(ReleaseCheckTest, AnImageIsHeldToWhatIsClaimedInOrder)
{
    const auto checked = checkRelease(image, claims);
    ASSERT_TRUE(checked);
    EXPECT_EQ(*checked, *claims.sha256);

    const QByteArray foreign = signatureBy(QStringLiteral("stranger"));
    struct Row {
        const char* name;
        std::function<void(ReleaseClaims&)> change;
        std::optional<ReleaseFlaw> flaw;
    };
    const std::vector<Row> rows{
        {"capital letters", [](auto& c) { c.sha256 = c.sha256->toUpper(); }, {}},
        {"neither checksum nor size", [](auto& c) { c.sha256.reset(), c.size.reset(); }, {}},
        {"an empty checksum", [](auto& c) { c.sha256 = QString(); }, ReleaseFlaw::Changed},
        {"one byte less", [](auto& c) { --*c.size; }, ReleaseFlaw::Changed},
        {"a negative size", [](auto& c) { c.size = -*c.size; }, ReleaseFlaw::Changed},
        {"another size and signer", [&](auto& c) { c.size = 1, c.signature = foreign; }, ReleaseFlaw::Changed},
        {"another checksum and signer",
         [&](auto& c) { c.sha256->replace(0, 8, QStringLiteral("deadbeef")), c.signature = foreign; },
         ReleaseFlaw::Changed},
        {"another signer", [&](auto& c) { c.signature = foreign; }, ReleaseFlaw::NotSigned},
        {"no key in this build", [](auto& c) { c.publicKey.clear(); }, ReleaseFlaw::NotSigned},
        {"the line of the key alone", [](auto& c) { c.publicKey = c.publicKey.split('\n').at(1); }, {}},
        {"the line with blanks around",
         [](auto& c) { c.publicKey = ' ' + c.publicKey.split('\n').at(1) + "\r\n"; },
         {}},
        {"two lines of a key", [](auto& c) { c.publicKey += c.publicKey.split('\n').at(1); }, ReleaseFlaw::NotSigned},
    };
    for (const Row& row : rows) {
        ReleaseClaims changed = claims;
        row.change(changed);
        EXPECT_EQ(flaw(image, changed), row.flaw) << row.name;
    }
}

TEST_F(ReleaseCheckTest, OnlyThePublishersPrehashedSignatureOverThisImageCounts)
{
    const QByteArray good = claims.signature;
    const QByteArray other = signatureBy(QStringLiteral("publisher"), "another image");
    const QList<QByteArray> lines = good.split('\n');
    QByteArray withStrangersId = lines[1];
    withStrangersId.replace(3, 8, signatureBy(QStringLiteral("stranger")).split('\n')[1].mid(3, 8));
    const auto with = [&good](const QByteArray& before, const QByteArray& after) {
        return QByteArray(good).replace(before, after);
    };
    const std::vector<std::pair<const char*, QByteArray>> bad{
        {"another image", other},
        {"legacy form", signatureBy(QStringLiteral("publisher"), content, {QStringLiteral("-l")})},
        {"legacy mark on a prehashed signature", with("\nRU", "\nRW")},
        {"another key's number", with(lines[1], withStrangersId)},
        {"changed trusted comment", with("build 320", "build 321")},
        {"comment signature of another", with(lines[3], other.split('\n')[3])},
        {"text after it", good + "more"},
        {"an empty line after it", good + '\n'},
        {"twice", good + good},
        {"a NUL after it", good + '\0'},
        {"Windows' line ends", with("\n", "\r\n")},
        {"no untrusted comment", with("untrusted comment: ", "")},
        {"blanks in the base64", with(lines[3], ' ' + lines[3])},
        {"a line of another length", with(lines[1], lines[1] + "AAAA")},
        {"too large", with("untrusted comment: ", "untrusted comment: " + QByteArray(5000, 'x'))},
        {"a page", "<html><body>Not found</body></html>"},
    };
    for (const auto& [name, signature] : bad) {
        ASSERT_NE(signature, good) << name;
        claims.signature = signature;
        EXPECT_EQ(flaw(image, claims), ReleaseFlaw::NotSigned) << name;
    }
    // The last letter is the end of the last line.
    for (qsizetype length = 0; length < good.size() - 1; ++length) {
        claims.signature = good.first(length);
        EXPECT_EQ(flaw(image, claims), ReleaseFlaw::NotSigned) << length;
    }
    claims.signature = good.chopped(1);
    EXPECT_EQ(flaw(image, claims), std::nullopt);
    // The first line means nothing.
    claims.signature = with(lines[0], "untrusted comment: whatever");
    EXPECT_EQ(flaw(image, claims), std::nullopt);
}

TEST_F(ReleaseCheckTest, WhatIsNoPlainFileIsNotRead)
{
    const QString link = file(QStringLiteral("link"));
    const QString pipe = file(QStringLiteral("pipe"));
    ASSERT_TRUE(QFile::link(image, link));
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& path : {link, pipe, folder.path(), file(QStringLiteral("nothing"))})
        EXPECT_EQ(flaw(path, claims), ReleaseFlaw::Unreadable) << path.toStdString();
    std::stop_source stop;
    stop.request_stop();
    EXPECT_EQ(flaw(image, claims, stop.get_token()), ReleaseFlaw::Stopped);
}
