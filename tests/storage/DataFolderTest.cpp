#include "storage/DataFolder.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>

#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using namespace loom;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

const QString name = QStringLiteral("lst_thing");

QString decodeTitle(const JsonReader& json)
{
    return json.text("title");
}

QJsonObject titled(const QString& title)
{
    return {{QStringLiteral("title"), title}};
}

class DataFolderTest : public testing::Test
{
protected:
    [[nodiscard]] QString path(const QString& file) const { return folder.path() + QLatin1Char('/') + file; }
    [[nodiscard]] std::optional<QByteArray> bytes(const QString& file) const
    {
        QFile reading(path(file));
        return reading.open(QIODevice::ReadOnly) ? std::optional(reading.readAll()) : std::nullopt;
    }
    void put(const QString& file, const QByteArray& content) const
    {
        QDir().mkpath(folder.path());
        QFile writing(path(file));
        ASSERT_TRUE(writing.open(QIODevice::WriteOnly));
        writing.write(content);
    }
    [[nodiscard]] static int mode(const QString& path)
    {
        struct stat status{};
        return stat(path.toLocal8Bit().constData(), &status) == 0 ? static_cast<int>(status.st_mode & 0777) : -1;
    }
    static void setMode(const QString& path, mode_t mode) { ASSERT_EQ(chmod(path.toLocal8Bit().constData(), mode), 0); }
    /// A folder that may be changed or not; the superuser may change any, so somebody else tries.
    void asOrdinaryUser(mode_t folderMode, const std::function<void()>& action) const
    {
        constexpr uid_t nobody = 65534;
        const uid_t user = geteuid();
        for (const QString& outside : {home.path(), home.path() + QStringLiteral("/data")})
            setMode(outside, 0755);
        setMode(folder.path(), folderMode);
        if (user == 0) {
            ASSERT_EQ(chown(folder.path().toLocal8Bit().constData(), nobody, nobody), 0);
            ASSERT_EQ(seteuid(nobody), 0);
        }
        action();
        ASSERT_EQ(seteuid(user), 0);
        setMode(folder.path(), 0755);
    }
    /// A disk that takes no files bigger than this.
    static void onFullDisk(rlim_t bytes, const std::function<void()>& action)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit before{};
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit full{.rlim_cur = bytes, .rlim_max = before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
        action();
        setrlimit(RLIMIT_FSIZE, &before);
    }
    [[nodiscard]] QStringList files() const
    {
        return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }

    QTemporaryDir home;
    DataFolder folder{home.path() + QStringLiteral("/data/LOOMSTREET")};
};

/// Saves to a file that the folder's writer cannot finish reading until this goes away, and then reads as `content`.
class BusyWriter
{
public:
    BusyWriter(DataFolder& folder, const QString& file, QByteArray content)
        : m_path(folder.path() + QLatin1Char('/') + file + QStringLiteral(".json"))
        , m_content(std::move(content))
    {
        const QByteArray pipe = m_path.toLocal8Bit();
        QDir().mkpath(folder.path());
        unlink(pipe.constData());
        EXPECT_EQ(mkfifo(pipe.constData(), 0600), 0);
        folder.save(file, titled(QStringLiteral("busy")));
        while (m_pipe < 0) { // until the writer is there
            m_pipe = open(pipe.constData(), O_WRONLY | O_NONBLOCK);
            std::this_thread::yield();
        }
    }
    BusyWriter(const BusyWriter&) = delete;
    BusyWriter& operator=(const BusyWriter&) = delete;
    ~BusyWriter()
    {
        QFile::remove(m_path);
        QFile file(m_path); // what is set aside is a file again
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(m_content);
        file.close();
        EXPECT_EQ(write(m_pipe, m_content.constData(), static_cast<std::size_t>(m_content.size())), m_content.size());
        close(m_pipe);
    }

private:
    QString m_path;
    QByteArray m_content;
    int m_pipe = -1;
};

TEST_F(DataFolderTest, WhatIsSavedIsLoadedAgainInThisRunAndInTheNext)
{
    EXPECT_EQ(folder.load(name, decodeTitle), std::nullopt);
    // Texts are cut anywhere before they are kept, also in the middle of a character.
    const QString hostile = QString::fromUtf8("\" \\ \n é \U0001F600 ") + QChar(0) + QChar(0xD83D);
    folder.save(name, titled(hostile));
    const auto now = folder.load(name, decodeTitle);
    ASSERT_TRUE(now);
    EXPECT_EQ(now->left(hostile.size() - 1), hostile.chopped(1));
    folder.save(name, titled(QStringLiteral("second")));
    {
        DataFolder other(folder.path());
        for (int i = 0; i < 20; ++i)
            other.save(QString::number(i), i);
        other.save(QStringLiteral("other"), titled(QStringLiteral("written by the destructor")));
        for (int i = 0; i < 20; ++i)
            other.remove(QString::number(i));
    }
    folder.waitUntilWritten();
    DataFolder next(folder.path());
    EXPECT_EQ(next.load(name, decodeTitle), QStringLiteral("second"));
    EXPECT_EQ(next.load(QStringLiteral("other"), decodeTitle), QStringLiteral("written by the destructor"));
    EXPECT_THAT(files(), ElementsAre(QStringLiteral("lst_thing.json"), QStringLiteral("other.json")));

    next.remove(name);
    next.remove(QStringLiteral("never saved"));
    next.waitUntilWritten();
    EXPECT_EQ(next.load(name, decodeTitle), std::nullopt);
    EXPECT_THAT(files(), ElementsAre(QStringLiteral("other.json")));
}

TEST_F(DataFolderTest, ChangesThatWaitAreSeenAtOnceAndOnlyTheLastIsCarriedOut)
{
    put(QStringLiteral("lst_thing.json"), "not ours");
    {
        const BusyWriter busy(folder, QStringLiteral("busy"), {});
        EXPECT_EQ(folder.load(name, decodeTitle), std::nullopt);
        for (int i = 0; i < 100; ++i)
            folder.save(name, titled(QString::number(i)));
        EXPECT_EQ(folder.load(name, decodeTitle), QStringLiteral("99"));
        folder.save(QStringLiteral("gone"), titled(QStringLiteral("a")));
        folder.remove(QStringLiteral("gone"));
        EXPECT_EQ(folder.load(QStringLiteral("gone"), decodeTitle), std::nullopt);
        folder.remove(QStringLiteral("back"));
        folder.save(QStringLiteral("back"), titled(QStringLiteral("b")));
        EXPECT_EQ(folder.load(QStringLiteral("back"), decodeTitle), QStringLiteral("b"));
        EXPECT_EQ(bytes(QStringLiteral("lst_thing.json")), "not ours");
        folder.save(QStringLiteral("busy"), titled(QStringLiteral("c"))); // while this very file is being written
    }
    folder.waitUntilWritten();
    EXPECT_EQ(bytes(QStringLiteral("lst_thing.json")), R"({"title":"99"})");
    EXPECT_EQ(bytes(QStringLiteral("busy.json")), R"({"title":"c"})");
    folder.remove(QStringLiteral("busy"));
    folder.waitUntilWritten();
    EXPECT_THAT(files(), ElementsAre(QStringLiteral("back.json"), QStringLiteral("lst_thing.json"),
                                     QStringLiteral("lst_thing.json.unreadable")));
}

TEST_F(DataFolderTest, FilesBelongToTheirOwnerAlone)
{
    const mode_t before = umask(0);
    put(QStringLiteral("other.json"), "not ours");
    EXPECT_EQ(mode(path(QStringLiteral("other.json"))), 0666);
    folder.save(QStringLiteral("other"), 1);
    folder.waitUntilWritten();
    EXPECT_EQ(mode(path(QStringLiteral("other.json"))), 0600);
    EXPECT_EQ(mode(path(QStringLiteral("other.json.unreadable"))), 0600);

    DataFolder fresh(home.path() + QStringLiteral("/another"));
    fresh.save(name, 1);
    fresh.waitUntilWritten();
    EXPECT_EQ(mode(fresh.path()), 0700);
    EXPECT_EQ(mode(fresh.path() + QStringLiteral("/lst_thing.json")), 0600);
    umask(before);
}

TEST_F(DataFolderTest, AFileThatDoesNotDecodeIsAbsentAndSetAsideBeforeItIsReplaced)
{
    for (const QByteArray& content : {
             QByteArray(),
             QByteArray("{\"title\":\"cut of"),
             QByteArray("<?xml version=\"1.0\"?>"),
             QByteArray("\x7f"
                        "ELF\0\0",
                        6),
             QByteArray(4096, '\0'),
             QByteArray("{\"title\":\"\xFF\xFE\"}"),
             QByteArray("{\"title\":\"nul \0\"}", 17),
             QByteArray(200'000, '['),
             // These are JSON, but not what the owner of the name wrote.
             QByteArray("[]"),
             QByteArray("null"),
             QByteArray("{\"title\":7}"),
         }) {
        put(QStringLiteral("lst_thing.json"), content);
        EXPECT_EQ(folder.load(name, decodeTitle), std::nullopt);
        EXPECT_EQ(bytes(QStringLiteral("lst_thing.json")), content);
        // The second save may overtake the first, and must not take its own file for the broken one.
        folder.save(name, titled(QStringLiteral("first")));
        folder.save(name, titled(QStringLiteral("second")));
        folder.waitUntilWritten();
        EXPECT_EQ(bytes(QStringLiteral("lst_thing.json.unreadable")), content);
        EXPECT_EQ(folder.load(name, decodeTitle), QStringLiteral("second"));
        folder.save(name, titled(QStringLiteral("third")));
        folder.waitUntilWritten();
        EXPECT_EQ(bytes(QStringLiteral("lst_thing.json.unreadable")), content);
        folder.remove(name);
        folder.waitUntilWritten();
        EXPECT_THAT(files(), IsEmpty());
    }
}

TEST_F(DataFolderTest, AFileIsSetAsideOnceHoweverManySavesOvertakeEachOther)
{
    QByteArray broken = "{\"title\":7}";
    const auto expectSetAside = [&](const char* saved) {
        folder.waitUntilWritten();
        EXPECT_EQ(bytes(QStringLiteral("lst_thing.json.unreadable")), broken);
        EXPECT_EQ(bytes(QStringLiteral("lst_thing.json")), saved);
    };
    put(QStringLiteral("lst_thing.json"), broken);
    EXPECT_EQ(folder.load(name, decodeTitle), std::nullopt);
    {
        const BusyWriter busy(folder, QStringLiteral("busy"), {});
        folder.save(name, titled(QStringLiteral("first")));
        folder.save(name, titled(QStringLiteral("second")));
    }
    expectSetAside(R"({"title":"second"})");

    broken = "{\"title\":";
    {
        const BusyWriter busy(folder, name, broken); // is just being set aside
        folder.save(name, titled(QStringLiteral("third")));
    }
    expectSetAside(R"({"title":"third"})");
}

TEST_F(DataFolderTest, WhatCannotBeReadIsReplacedOnlyOnceItIsSetAside)
{
    const QString file = QStringLiteral("lst_thing.json");
    const QString aside = QStringLiteral("lst_thing.json.unreadable");
    const QByteArray broken(4096, '\0');
    const QByteArray foreign = R"({"title":7})";
    const auto saveTwo = [&] {
        EXPECT_EQ(folder.load(name, decodeTitle), std::nullopt);
        folder.save(name, titled(QStringLiteral("a")));
        folder.waitUntilWritten();
        folder.save(name, titled(QStringLiteral("b")));
        folder.waitUntilWritten();
    };

    // There is no room for a copy.
    put(file, broken);
    onFullDisk(64, saveTwo);
    EXPECT_EQ(bytes(aside), broken);
    EXPECT_EQ(bytes(file), R"({"title":"b"})");

    // Where nothing can be set aside everything stays, until it can be.
    put(file, foreign);
    QFile::remove(path(aside));
    QDir().mkpath(path(aside) + QStringLiteral("/in the way"));
    saveTwo();
    EXPECT_EQ(bytes(file), foreign);
    QDir(path(aside)).removeRecursively();
    put(aside, broken);
    asOrdinaryUser(0555, saveTwo);
    EXPECT_EQ(bytes(aside), broken);
    EXPECT_EQ(bytes(file), foreign);
    folder.save(name, titled(QStringLiteral("c")));
    folder.waitUntilWritten();
    EXPECT_EQ(bytes(aside), foreign);
    EXPECT_EQ(bytes(file), R"({"title":"c"})");
}

TEST_F(DataFolderTest, AListGivesEveryRecordThatIsWhole)
{
    struct Row {
        const char* content;
        QStringList titles;
        bool isWhole;
    };
    const QStringList both{QStringLiteral("a"), QStringLiteral("b")};
    const QStringList first{QStringLiteral("a")};
    for (const Row& row : {
             Row{R"([{"title":"a"},{"title":"b"}])", both, true},
             Row{" [ ] \n", {}, true},
             Row{R"([{"title":"a\"},{"},{"title":"\\"}])", {QStringLiteral("a\"},{"), QStringLiteral("\\")}, true},
             // cut off
             Row{"", {}, false},
             Row{R"([{"title":"a"},{"title":"b"})", both, false},
             Row{R"([{"title":"a"},{"title":"b)", first, false},
             Row{R"([{"title":"a"},[{"title":"b"})", first, false},
             // broken
             Row{R"([{"title":"a"},{"title":7},null,"b",{"title":"b"}])", both, false},
             Row{R"([{"title":"a"},{"title":"x"],{"title":"b"}])", both, false},
             Row{"[{\"title\":\"a\"},{\"title\":\"\xFF\"},{\"title\":\"b\"}]", both, false},
             Row{R"([{"title":"a"},,{"title":"b"}])", both, false},
             Row{R"([{"title":"a"} {"title":"x"},{"title":"b"}])", {QStringLiteral("b")}, false},
             Row{R"([{"title":"a"}][{"title":"b"}])", first, false},
             // foreign
             Row{R"({"title":"a"})", {}, false},
             Row{R"(]{"title":"a"},{"title":"b"}])", {}, false},
             Row{R"("title")", {}, false},
         }) {
        put(QStringLiteral("lst_thing.json"), row.content);
        EXPECT_EQ(folder.loadList(name, decodeTitle), std::vector(row.titles.cbegin(), row.titles.cend()))
            << row.content;
        folder.save(name, QJsonArray());
        folder.waitUntilWritten();
        EXPECT_EQ(bytes(QStringLiteral("lst_thing.json.unreadable")),
                  row.isWhole ? std::nullopt : std::optional(QByteArray(row.content)))
            << row.content;
        folder.remove(name);
        folder.waitUntilWritten();
    }

    // What looks whole may have been longer: a number or a word that was cut is another one.
    put(QStringLiteral("lst_thing.json"), "[12,345");
    EXPECT_THAT(folder.loadList(name, [](const JsonReader& json) { return json.asJson().toInt(); }), ElementsAre(12));
    put(QStringLiteral("lst_thing.json"), QByteArray(2'000'000, '['));
    EXPECT_THAT(folder.loadList(name, decodeTitle), IsEmpty());
}

TEST_F(DataFolderTest, AWriteThatFailsLeavesThePreviousFileAndNothingElse)
{
    folder.save(name, titled(QStringLiteral("previous")));
    folder.waitUntilWritten();

    onFullDisk(512, [this] {
        folder.save(name, titled(QString(100'000, QLatin1Char('x'))));
        folder.waitUntilWritten();
    });
    EXPECT_EQ(folder.load(name, decodeTitle), QStringLiteral("previous"));
    EXPECT_THAT(files(), ElementsAre(QStringLiteral("lst_thing.json")));

    asOrdinaryUser(0555, [this] {
        folder.save(name, titled(QStringLiteral("refused")));
        folder.waitUntilWritten();
        folder.remove(name);
        folder.waitUntilWritten();
    });
    EXPECT_EQ(folder.load(name, decodeTitle), QStringLiteral("previous"));
    folder.save(name, titled(QStringLiteral("again")));
    folder.waitUntilWritten();
    EXPECT_EQ(bytes(QStringLiteral("lst_thing.json")), R"({"title":"again"})");

    // A folder that cannot be made.
    put(QStringLiteral("file"), "");
    DataFolder impossible(path(QStringLiteral("file/below")));
    impossible.save(name, 1);
    impossible.waitUntilWritten();
    EXPECT_EQ(impossible.load(name, decodeTitle), std::nullopt);
}

} // namespace
