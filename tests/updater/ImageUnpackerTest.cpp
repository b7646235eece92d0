#include "updater/ImageUnpacker.h"

#include "updater/Releases.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>

#include <csignal>
#include <cstring>
#include <filesystem>
#include <random>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace loom;
using Code = InstallResult::Code;

namespace
{

// Names and inodes as they are, so that a test can change them in the image.
const QStringList plain{QStringLiteral("-noI"), QStringLiteral("-noD"), QStringLiteral("-noF")};

class ImageUnpackerTest : public testing::Test
{
protected:
    ImageUnpackerTest() { QDir().mkpath(tree); }

    [[nodiscard]] QString path(const char* inHome) const
    {
        return home.path() + QLatin1Char('/') + QLatin1String(inHome);
    }
    void putInTree(const char* name, const QByteArray& content, mode_t mode = 0644) const
    {
        put(tree + QLatin1Char('/') + QLatin1String(name), content, mode);
    }
    void linkInTree(const char* target, const char* name) const
    {
        ASSERT_EQ(symlink(target, QFile::encodeName(tree + QLatin1Char('/') + QLatin1String(name)).constData()), 0);
    }
    /// Changes bytes of the image that occur once.
    void change(const QByteArray& from, const QByteArray& to) const
    {
        QByteArray bytes = contentOf(image);
        ASSERT_EQ(bytes.count(from), 1) << from.toStdString();
        put(image, bytes.replace(from, to));
    }
    /// What comes of unpacking the image: nothing when it went well.
    [[nodiscard]] std::optional<Code> unpacked(const UnpackLimits& limits = {.spare = 0}) const
    {
        // Qt cannot remove every name that an image may hold.
        std::filesystem::remove_all(into.toStdString());
        QDir().mkpath(into);
        QFile file(image);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const auto result = unpackImage(file.handle(), into, limits);
        return result ? std::nullopt : std::optional(result.error());
    }

    QTemporaryDir home;
    QString tree = path("tree");
    QString image = path("image");
    QString into = path("into");
};

TEST_F(ImageUnpackerTest, WhatWasPackedIsUnpackedWithPermissionsOfOurOwn)
{
    QByteArray long_;
    std::minstd_rand random(7); // NOLINT(bugprone-random-generator-seed): the same every time
    for (int i = 0; i < 300'001; ++i)
        long_.append(static_cast<char>(random()));
    putInTree("bin/long", long_, 04750);
    putInTree("bin/holes", QByteArray(500'000, '\0') + "end", 0600);
    putInTree("empty", {}, 0444);
    putInTree("Größe und 服", "name", 0666);
    ASSERT_TRUE(QDir().mkpath(tree + QStringLiteral("/nothing/in/here")));
    linkInTree("../bin/long", "nothing/link");
    linkInTree("no/such/thing", "dangling");
    ASSERT_EQ(link(QFile::encodeName(tree + QStringLiteral("/empty")).constData(),
                   QFile::encodeName(tree + QStringLiteral("/twin")).constData()),
              0);
    for (const QStringList& arguments :
         {QStringList{}, plain, QStringList{QStringLiteral("-b"), QStringLiteral("65536")}}) {
        makeImage(tree, image, arguments);
        const mode_t mask = umask(077);
        EXPECT_EQ(unpacked(), std::nullopt);
        umask(mask);
        EXPECT_EQ(treeOf(into), treeOf(tree));
        for (const auto& [name, mode, links] : {std::tuple{"bin", 040755U, 2U},
                                                {"bin/long", 0100755U, 1U},
                                                {"bin/holes", 0100644U, 1U},
                                                {"empty", 0100644U, 1U},
                                                {"twin", 0100644U, 1U},
                                                {"nothing/in/here", 040755U, 2U}}) {
            struct stat status{};
            ASSERT_EQ(stat(QFile::encodeName(into + QLatin1Char('/') + QLatin1String(name)).constData(), &status), 0);
            EXPECT_EQ(status.st_mode, mode) << name;
            EXPECT_EQ(status.st_nlink, links) << name;
        }
    }
}

TEST(ImagePlanTest, LinksStayInside)
{
    for (const auto& [target, depth, stays] : {std::tuple{"a", 0, true},
                                               {"a/b.so.1", 0, true},
                                               {"./a", 0, true},
                                               {".", 0, true},
                                               {"..", 1, true},
                                               {"../../x", 2, true},
                                               {"./..//../x/", 2, true},
                                               {"...", 0, true},
                                               {"a..b/..c", 0, true},
                                               {"..", 0, false},
                                               {"../x", 0, false},
                                               {"../../x", 1, false},
                                               {"./../..", 1, false},
                                               {"/", 5, false},
                                               {"/etc/passwd", 5, false},
                                               {"//x", 5, false},
                                               {"a/..", 5, false},
                                               {"../a/../../b", 5, false},
                                               {"", 5, false}})
        EXPECT_EQ(staysInside(target, depth), stays) << target << " in " << depth;
    EXPECT_FALSE(staysInside(QByteArray("a\0b", 3), 0));
}

TEST_F(ImageUnpackerTest, LinksThatLeadOutAreRefused)
{
    for (const char* const target : {"/etc", "../..", "../../outside", "x/../../../outside"}) {
        QDir(tree).removeRecursively();
        QDir().mkpath(tree + QStringLiteral("/sub"));
        linkInTree(target, "sub/link");
        makeImage(tree, image);
        EXPECT_EQ(unpacked(), Code::BadImage) << target;
        EXPECT_TRUE(treeOf(into).isEmpty()) << target;
    }
}

TEST_F(ImageUnpackerTest, WhatIsNeitherFileNorFolderNorLinkIsRefused)
{
    for (const char* const pseudo : {"x c 666 0 0 1 3", "x b 666 0 0 8 0", "x i 666 0 0 f", "x i 666 0 0 s"}) {
        makeImage(tree, image, {QStringLiteral("-p"), QString::fromLatin1(pseudo)});
        EXPECT_EQ(unpacked(), Code::BadImage) << pseudo;
        EXPECT_TRUE(treeOf(into).isEmpty()) << pseudo;
    }
}

TEST_F(ImageUnpackerTest, NamesThatAreNoNamesAreRefused)
{
    for (const QByteArray& name : {QByteArray("@@/@@"), QByteArray("/@@@@"), QByteArray("@@\0@@", 5),
                                   QByteArray("../@@"), QByteArray("@@@@/")}) {
        putInTree("@@@@@", "x");
        makeImage(tree, image, plain);
        ASSERT_EQ(unpacked(), std::nullopt);
        change("@@@@@", name);
        EXPECT_EQ(unpacked(), Code::BadImage) << name.toStdString();
    }
    for (const auto& [name, changed] : {std::pair{"@#", ".."}, {"@", "."}}) {
        QDir(tree).removeRecursively();
        putInTree(name, "x");
        makeImage(tree, image, plain);
        ASSERT_EQ(unpacked(), std::nullopt);
        // Names are the last of their kind in an image.
        QByteArray bytes = contentOf(image);
        put(image, bytes.replace(bytes.lastIndexOf(name), static_cast<qsizetype>(strlen(name)), changed));
        EXPECT_EQ(unpacked(), Code::BadImage) << changed;
    }
}

TEST_F(ImageUnpackerTest, NothingIsWrittenThroughALinkOfTheSameName)
{
    const QString victim = into + QStringLiteral("/a-victim");
    for (const auto& [target, twin] : {std::pair{"a-victim", "twin-2/file"}, {"a-victim/file", "twin-2"}}) {
        QDir(tree).removeRecursively();
        putInTree("a-victim/file", "as it was");
        linkInTree(target, "twin-1");
        putInTree(twin, "overwritten");
        makeImage(tree, image, plain);
        ASSERT_EQ(unpacked(), std::nullopt);
        change("twin-2", "twin-1");
        EXPECT_EQ(unpacked(), Code::BadImage) << twin;
        EXPECT_EQ(contentOf(victim + QStringLiteral("/file")), "as it was") << twin;
    }
}

TEST_F(ImageUnpackerTest, AFileThatComesOutShorterThanItsInodeSaysIsRefused)
{
    putInTree("file", QByteArray(65536, 'x'));
    makeImage(tree, image, plain + QStringList{QStringLiteral("-b"), QStringLiteral("65536")});
    ASSERT_EQ(unpacked(), std::nullopt);
    // The size of its one block, which is not compressed.
    change(QByteArray::fromHex("00000101"), QByteArray::fromHex("ffff0001"));
    EXPECT_EQ(unpacked(), Code::BadImage);
}

TEST_F(ImageUnpackerTest, AnEndOfAFileThatDoesNotLieInItsBlockIsRefused)
{
    // Where it begins, before the size of the file.
    for (const char* const offset : {"fcffffff", "ffffffff", "00000200", "cded0100"}) {
        putInTree("file", QByteArray(0x1234, 'x'));
        makeImage(tree, image, plain);
        ASSERT_EQ(unpacked(), std::nullopt);
        change(QByteArray::fromHex("0000000034120000"), QByteArray::fromHex(offset) + QByteArray::fromHex("34120000"));
        EXPECT_EQ(unpacked(), Code::BadImage) << offset;
    }
}

TEST_F(ImageUnpackerTest, AFolderThatHoldsItselfIsRefused)
{
    QDir().mkpath(tree + QStringLiteral("/@loop@"));
    makeImage(tree, image, plain);
    QByteArray bytes = contentOf(image);
    // The low bytes of the root's place, in the superblock, become those of the entry, eight bytes before its name.
    bytes.replace(bytes.indexOf("@loop@") - 8, 2, bytes.mid(32, 2));
    put(image, bytes);
    EXPECT_EQ(unpacked(), Code::BadImage);
    EXPECT_TRUE(treeOf(into).isEmpty());
}

TEST_F(ImageUnpackerTest, WhatIsTooMuchIsRefusedBeforeAnythingIsWritten)
{
    for (int i = 0; i < 300; ++i)
        putInTree(QByteArray("many/" + QByteArray::number(i)).constData(), {});
    putInTree("bomb", {});
    ASSERT_EQ(truncate(QFile::encodeName(tree + QStringLiteral("/bomb")).constData(), 67'108'864), 0);
    putInTree("a/b/c/d/e", {});
    // Zeros as holes, and as blocks that compress to next to nothing.
    for (const QStringList& arguments : {QStringList{}, QStringList{QStringLiteral("-no-sparse")}}) {
        makeImage(tree, image, arguments);
        EXPECT_LT(contentOf(image).size(), 64 * 1024);
        for (const auto& [limits, code] :
             {std::pair{UnpackLimits{.entries = 1000, .bytes = 80'000'000, .depth = 5, .spare = 0},
                        std::optional<Code>()},
              {UnpackLimits{.entries = 300}, Code::BadImage},
              {UnpackLimits{.bytes = 60'000'000}, Code::BadImage},
              {UnpackLimits{.bytes = 67'500'000}, Code::BadImage},
              {UnpackLimits{.depth = 4}, Code::BadImage},
              {UnpackLimits{.spare = std::numeric_limits<qint64>::max()}, Code::NoSpace}}) {
            EXPECT_EQ(unpacked(limits), code);
            EXPECT_EQ(treeOf(into).isEmpty(), code.has_value());
        }
    }
}

TEST_F(ImageUnpackerTest, ADiskThatFillsUpMeanwhileIsNoFaultOfTheImage)
{
    std::signal(SIGXFSZ, SIG_IGN);
    putInTree("big", QByteArray(400'000, 'x'));
    makeImage(tree, image);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto restore = qScopeGuard([&before] { setrlimit(RLIMIT_FSIZE, &before); });
    const rlimit full{.rlim_cur = 300'000, .rlim_max = before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &full), 0);
    EXPECT_EQ(unpacked(), Code::NoSpace);
}

TEST_F(ImageUnpackerTest, OnlyTheImageThatIsOpenCounts)
{
    putInTree("which", "verified");
    makeImage(tree, image);
    QFile file(image);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    putInTree("which", "swapped");
    makeImage(tree, path("other"));
    ASSERT_EQ(rename(QFile::encodeName(path("other")).constData(), QFile::encodeName(image).constData()), 0);
    QDir().mkpath(into);
    EXPECT_TRUE(unpackImage(file.handle(), into, {.spare = 0}));
    EXPECT_EQ(contentOf(into + QStringLiteral("/which")), "verified");
}

TEST_F(ImageUnpackerTest, NeitherAnotherCompressionNorSmallBlocksNorAnotherFolderThanItsOwnAreTaken)
{
    putInTree("file", "x");
    for (const auto& [option, value] : {std::pair{"-comp", "gzip"}, {"-b", "32768"}}) {
        makeImage(tree, image, {QString::fromLatin1(option), QString::fromLatin1(value)});
        EXPECT_EQ(unpacked(), Code::BadImage) << option;
    }
    makeImage(tree, image);
    QDir(into).removeRecursively();
    QDir().mkpath(path("victim"));
    ASSERT_TRUE(QFile::link(path("victim"), into));
    QFile file(image);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_FALSE(unpackImage(file.handle(), into, {.spare = 0}));
    EXPECT_TRUE(treeOf(path("victim")).isEmpty());
}

TEST_F(ImageUnpackerTest, ADamagedImageEndsInAFailureOrInsideItsFolder)
{
    for (int i = 0; i < 12; ++i)
        putInTree(QByteArray("bin/file" + QByteArray::number(i)).constData(),
                  QByteArray(i == 11 ? 70'000 : qsizetype{700} * i, static_cast<char>('a' + i)));
    linkInTree("bin/file3", "link");
    for (const QStringList& arguments : {QStringList{}, plain}) {
        makeImage(tree, image, arguments + QStringList{QStringLiteral("-b"), QStringLiteral("65536")});
        const QByteArray whole = contentOf(image);
        ASSERT_EQ(unpacked(), std::nullopt);
        for (qsizetype length = 0; length < whole.size(); length += 1 + whole.size() / 150) {
            put(image, whole.left(length));
            if (!unpacked()) {
                EXPECT_EQ(treeOf(into), treeOf(tree)) << length; // what is missing was of no use
            }
        }
        std::minstd_rand random(11); // NOLINT(bugprone-random-generator-seed): the same every time
        for (int round = 0; round < 300; ++round) {
            QByteArray changed = whole;
            for (unsigned flips = 1 + random() % 3; flips > 0; --flips) {
                // Mostly not in the content of files, which is never looked at.
                const qsizetype from = random() % 4 == 0 ? 0 : whole.size() - std::min<qsizetype>(whole.size(), 1200);
                const qsizetype at = from + static_cast<qsizetype>(random()) % (whole.size() - from);
                changed[at] = static_cast<char>(changed.at(at) ^ (1 << random() % 8));
            }
            put(image, changed);
            (void)unpacked({.entries = 1000, .bytes = 10'000'000, .spare = 0});
            const auto written = treeOf(into);
            for (auto entry = written.cbegin(); entry != written.cend(); ++entry) {
                if (QFileInfo(into + QLatin1Char('/') + entry.key()).isSymLink()) {
                    EXPECT_TRUE(staysInside(*entry, static_cast<int>(entry.key().count(QLatin1Char('/')))));
                }
            }
            ASSERT_EQ(QDir(home.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 3) << round;
        }
    }
    std::filesystem::remove_all(into.toStdString());
}

} // namespace
