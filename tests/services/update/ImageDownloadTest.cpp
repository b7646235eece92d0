#include "services/update/ImageDownload.h"

#include "support/Printing.h"
#include "support/Running.h"
#include "support/TestServer.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/file.h>
#include <sys/resource.h>

using namespace loom;
using namespace std::chrono_literals;

namespace
{

using Outcome = Result<QString, ImageDownloadFailure>;
using Kind = ImageDownloadFailure::Kind;

constexpr qsizetype imageBytes = 3'000'000;
constexpr qsizetype cut = 1'000'000;
const QByteArray route = "GET /image";

QByteArray imageOf(char salt)
{
    QByteArray bytes(imageBytes, salt);
    for (qsizetype i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(bytes[i] + i * 7 + i / 251);
    return bytes;
}

Outcome failed(Kind kind, int status = 0)
{
    return Unexpected(ImageDownloadFailure{.kind = kind, .status = status});
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

bool isPrivate(const QString& path)
{
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    return QFile::exists(path) && !(QFile::permissions(path) & others);
}

class ImageDownloadTest : public testing::Test
{
protected:
    [[nodiscard]] ImageDownloadOrder order() const
    {
        return {.url = server.url(QStringLiteral("/image")), .file = file, .size = imageBytes};
    }
    [[nodiscard]] Running<Outcome> begin(ImageDownloadOrder what, std::stop_token stop = {})
    {
        return Running<Outcome>(
            downloadImage(std::move(what), [this](double progress) { told.push_back(progress); }, std::move(stop)));
    }
    Outcome download(ImageDownloadOrder what) { return std::move(begin(std::move(what)).result()); }
    /// Of what is asked for the rest, and the whole of what else is.
    [[nodiscard]] static Answer ranged(const ReceivedRequest& request, const QByteArray& image, const QByteArray& tag)
    {
        const QByteArray range = request.header("Range");
        if (range.isEmpty() || request.header("If-Range") != tag)
            return Answer::body(image).header("ETag", tag);
        const qsizetype first = range.mid(6).chopped(1).toLongLong();
        return rest(image, "bytes " + QByteArray::number(first) + '-' + QByteArray::number(image.size() - 1) + '/' +
                               QByteArray::number(image.size()))
            .header("ETag", tag);
    }
    [[nodiscard]] static Answer rest(const QByteArray& image, const QByteArray& range)
    {
        return Answer::body(image.mid(range.mid(6).split('-').value(0).toLongLong()), 206)
            .header("Content-Range", range);
    }
    /// An earlier attempt got this far.
    void cutOff(const QByteArray& name = "ETag", const QByteArray& validator = "\"one\"")
    {
        QFile::remove(file);
        server.expect(route, Answer::body(image).header(name, validator).cutAfter(cut));
        ASSERT_EQ(download(order()), failed(Kind::Incomplete));
        ASSERT_EQ(QFile(part).size(), cut);
        told.clear();
    }
    void expectWhole(const QByteArray& bytes) const
    {
        EXPECT_TRUE(contents(file) == bytes);
        EXPECT_TRUE(isPrivate(file));
        EXPECT_EQ(QDir(folder).entryList(QDir::Files), QStringList{QStringLiteral("a.squashfs")});
    }
    [[nodiscard]] const ReceivedRequest& lastRequest() const { return server.requests().back(); }

    QTemporaryDir temporary;
    const QString folder = temporary.filePath(QStringLiteral("updates"));
    const QString file = folder + QStringLiteral("/a.squashfs");
    const QString part = file + QStringLiteral(".part");
    const QByteArray image = imageOf('a');
    std::vector<double> told;
    TestServer server;
};

TEST_F(ImageDownloadTest, AnImageArrivesWholeInAPrivateFileAsItLiesOnTheServer)
{
    for (const std::optional<qint64> size : {std::optional<qint64>(imageBytes), std::optional<qint64>()}) {
        told.clear();
        // The server closes right behind it.
        server.expect(route, Answer::body(image).header("Content-Encoding", "gzip").cutAfter(imageBytes));
        ImageDownloadOrder what = order();
        what.size = size;
        EXPECT_EQ(download(what), Outcome(file));
        expectWhole(image);
        EXPECT_FALSE(told.empty());
        EXPECT_TRUE(std::ranges::is_sorted(told));
        EXPECT_TRUE(std::ranges::all_of(told, [](double progress) { return progress > 0 && progress <= 1; }));
        EXPECT_EQ(lastRequest().header("Accept-Encoding"), "identity");
        EXPECT_EQ(lastRequest().header("Range"), "");
    }
}

TEST_F(ImageDownloadTest, ADownloadGoesOnWhereTheConnectionWasCut)
{
    for (const QByteArray& validator : {QByteArray("\"one\""), QByteArray("Sun, 09 Mar 2025 08:07:06 GMT")}) {
        cutOff(validator.startsWith('"') ? "ETag" : "Last-Modified", validator);
        EXPECT_TRUE(isPrivate(part));
        EXPECT_TRUE(isPrivate(part + QStringLiteral(".json")));
        server.expect(route, rest(image, "bytes 1000000-2999999/3000000"));
        EXPECT_EQ(download(order()), Outcome(file));
        EXPECT_EQ(lastRequest().header("Range"), "bytes=1000000-");
        EXPECT_EQ(lastRequest().header("If-Range"), validator);
        ASSERT_FALSE(told.empty());
        EXPECT_GT(told.front(), 0.33);
        expectWhole(image);
    }
}

TEST_F(ImageDownloadTest, WhatTheServerNoLongerHasBeginsAnew)
{
    const QByteArray other = imageOf('b');
    for (const auto& answer : {
             rest(other, "bytes 999999-2999999/3000000"),
             rest(other, "bytes 1000001-2999999/3000000"),
             rest(other, "bytes 1000000-1999999/3000000"),
             rest(other, "bytes 1000000-2999999/99999999999999999999"),
             rest(other, "pages 1-2/3"),
             rest(other, "bytes 1000000-2999999/3000000").header("ETag", "\"two\""),
             Answer::body("", 416).header("Content-Range", "bytes */3"),
         }) {
        cutOff();
        server.expect(route, answer);
        server.expect(route, Answer::body(other).header("ETag", "\"two\""));
        EXPECT_EQ(download(order()), Outcome(file));
        EXPECT_EQ(lastRequest().header("Range"), "");
        expectWhole(other);
    }
    // At once, where the server answers with all of it.
    cutOff();
    server.expect(route, Answer::body(other).header("ETag", "\"two\"").cutAfter(2 * cut));
    EXPECT_EQ(download(order()), failed(Kind::Incomplete));
    EXPECT_TRUE(other.startsWith(contents(part)));
    const QByteArray got = QByteArray::number(QFile(part).size());
    server.allow(route, [&other](const ReceivedRequest& request) { return ranged(request, other, "\"two\""); });
    EXPECT_EQ(download(order()), Outcome(file));
    EXPECT_EQ(lastRequest().header("Range"), "bytes=" + got + '-');
    expectWhole(other);
}

TEST_F(ImageDownloadTest, WhatCannotBeToldToBeTheServersIsAskedForWhole)
{
    struct Row {
        const char* what;
        QByteArray validator;
        std::function<void(ImageDownloadOrder&)> change;
    };
    const QByteArray tag = "\"one\"";
    const QString memo = part + QStringLiteral(".json");
    for (const Row& row : {
             Row{"no more than alike", "W/\"one\"",
                 [](ImageDownloadOrder&) {
                 }},
             Row{"a validator that no answer has", QByteArray(600, '"'),
                 [](ImageDownloadOrder&) {
                 }},
             Row{"another address", tag,
                 [this](ImageDownloadOrder& what) {
                     what.url = server.url(QStringLiteral("/image?b"));
                 }},
             Row{"no memo", tag,
                 [&memo](ImageDownloadOrder&) {
                     QFile::remove(memo);
                 }},
             Row{"half a memo", tag,
                 [&memo](ImageDownloadOrder&) {
                     write(memo, contents(memo).chopped(3));
                 }},
             Row{"a foreign memo", tag,
                 [&memo](ImageDownloadOrder&) {
                     write(memo, R"(["url", 1])");
                 }},
             Row{"more than the whole", tag,
                 [this](ImageDownloadOrder&) {
                     write(part, image + "x");
                 }},
         }) {
        cutOff("ETag", row.validator);
        ImageDownloadOrder what = order();
        row.change(what);
        server.expect(route, Answer::body(image));
        EXPECT_EQ(download(what), Outcome(file)) << row.what;
        EXPECT_EQ(lastRequest().header("Range"), "") << row.what;
        EXPECT_EQ(lastRequest().header("If-Range"), "") << row.what;
        expectWhole(image);
    }
    // Nothing is missing but the end of the last attempt.
    cutOff();
    write(part, image);
    EXPECT_EQ(download(order()), Outcome(file));
    expectWhole(image);
}

TEST_F(ImageDownloadTest, EveryFailureIsSaidAndLeavesNoImage)
{
    struct Row {
        const char* what;
        Answer answer;
        Outcome outcome;
    };
    const QUrl plain(QStringLiteral("http://") + server.host() + QStringLiteral("/image"));
    for (const Row& row : {
             Row{"not found", Answer::body("no", 404), failed(Kind::Http, 404)},
             Row{"gone", Answer::body(image, 410), failed(Kind::Http, 410)},
             Row{"broken", Answer::body("", 500), failed(Kind::Http, 500)},
             Row{"locked", Answer::body("", 401).header("WWW-Authenticate", "Basic realm=\"a\""),
                 failed(Kind::Http, 401)},
             Row{"a range to nobody", rest(image, "bytes 0-2999999/3000000"), failed(Kind::Http, 206)},
             Row{"a range that is out of nowhere", Answer::body("", 416), failed(Kind::Http, 416)},
             Row{"choices", Answer::body("a", 300), failed(Kind::Http, 300)},
             Row{"not encrypted", Answer::redirect(plain), failed(Kind::Http, 302)},
             Row{"a redirection with a name in it",
                 Answer::redirect(QUrl(QStringLiteral("https://a:b@") + server.host() + QStringLiteral("/image"))),
                 failed(Kind::Http, 302)},
             Row{"a redirection to nowhere", Answer::body("", 307), failed(Kind::Http, 307)},
             Row{"another scheme", Answer::redirect(QUrl(QStringLiteral("file:///etc/passwd"))),
                 failed(Kind::Http, 302)},
             Row{"longer than announced, told at once", Answer::body(image + "x").pauseAfter(0),
                 failed(Kind::Incomplete)},
             Row{"shorter than announced", Answer::body(image.chopped(1)), failed(Kind::Incomplete)},
             Row{"announced beyond all bounds",
                 Answer::raw("HTTP/1.1 200 OK\r\nContent-Length: 9223372036854775807\r\n\r\nabc"),
                 failed(Kind::Incomplete)},
             Row{"without an end", Answer::endless(), failed(Kind::Incomplete)},
             Row{"a lost connection", Answer::raw("HTTP/1.1 200 OK\r\nContent-Length: 3000000\r\n\r\nabc").cutAfter(60),
                 failed(Kind::Incomplete)},
         }) {
        server.expect(route, row.answer);
        EXPECT_EQ(download(order()), row.outcome) << row.what;
        EXPECT_FALSE(QFile::exists(file)) << row.what;
        EXPECT_LT(QFile(part).size(), imageBytes) << row.what;
        QFile::remove(part);
    }
    server.allow(route, [](const ReceivedRequest&) { return Answer::drop(); });
    EXPECT_EQ(download(order()), failed(Kind::Incomplete));
    ImageDownloadOrder what = order();
    what.url = plain;
    EXPECT_EQ(download(what), failed(Kind::Incomplete));
    what = order();
    what.size.reset();
    what.most = cut;
    for (const Answer& answer : {Answer::body(image).pauseAfter(0), Answer::endless()}) {
        server.expect(route, answer);
        EXPECT_EQ(download(what), failed(Kind::TooLarge));
    }
    TestServer foreign(Credentials::ForeignAuthority);
    what.url = foreign.url(QStringLiteral("/image"));
    EXPECT_EQ(download(what), failed(Kind::Incomplete));
}

TEST_F(ImageDownloadTest, FiveRedirectionsAreFollowed)
{
    for (const int redirections : {5, 6}) {
        for (int i = 0; i < redirections; ++i)
            server.expect(route,
                          Answer::redirect(i % 2 ? QUrl(QStringLiteral("image")) : order().url, i % 2 ? 302 : 308));
        if (redirections == 5)
            server.expect(route, Answer::body(image));
        EXPECT_EQ(download(order()), redirections == 5 ? Outcome(file) : failed(Kind::Http, 302));
    }
}

TEST_F(ImageDownloadTest, WhereTheImageCannotBeWrittenItIsSaid)
{
    ImageDownloadOrder below = order();
    write(temporary.filePath(QStringLiteral("plain")), "a");
    below.file = temporary.filePath(QStringLiteral("plain/a.squashfs"));
    EXPECT_EQ(download(below), failed(Kind::Unwritable)); // and nothing is asked for

    server.allow(route, [this](const ReceivedRequest&) { return Answer::body(image); });
    ASSERT_TRUE(QDir().mkpath(file));
    EXPECT_EQ(download(order()), failed(Kind::Unwritable));
    ASSERT_TRUE(QDir().rmdir(file));

    // As if there were no more room.
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto signalBefore = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{.rlim_cur = 2'000'000, .rlim_max = before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const Outcome outcome = download(order());
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, signalBefore);
    EXPECT_EQ(outcome, failed(Kind::Unwritable));
    EXPECT_EQ(QDir(folder).entryList(QDir::Files), QStringList());
}

TEST_F(ImageDownloadTest, OneThatIsStoppedTellsNothingMoreAndLeavesThePlaceToTheNext)
{
    std::stop_source first;
    server.expect(route, Answer::body(image).header("ETag", "\"one\"").pauseAfter(cut));
    std::size_t toldWhenStopped = 0;
    Running<Outcome> stopped(downloadImage(
        order(),
        [&](double progress) {
            told.push_back(progress);
            toldWhenStopped = told.size();
            first.request_stop();
        },
        first.get_token()));
    waitUntil([&] { return first.stop_requested(); }, "a part has come");
    server.allow(route, [this](const ReceivedRequest& request) { return ranged(request, image, "\"one\""); });
    // The first one still has the file in hand.
    Running<Outcome> next(downloadImage(order(), [](double) {}, {}));
    EXPECT_EQ(stopped.result(), failed(Kind::Stopped));
    EXPECT_EQ(next.result(), Outcome(file));
    EXPECT_FALSE(server.requests().back().header("Range").isEmpty());
    expectWhole(image);
    drainEvents();
    EXPECT_EQ(told.size(), toldWhenStopped);

    const std::size_t requests = server.requests().size();
    EXPECT_EQ(begin(order(), first.get_token()).result(), failed(Kind::Stopped));
    EXPECT_EQ(server.requests().size(), requests);
}

TEST_F(ImageDownloadTest, SilenceEndsADownload)
{
    ImageDownloadOrder what = order();
    what.silence = 300ms;
    for (const Answer& answer :
         {Answer::silence(), Answer::body(image).pauseAfter(0), Answer::body(image).pauseAfter(cut)}) {
        server.expect(route, answer);
        EXPECT_EQ(download(what), failed(Kind::Incomplete));
    }
    // As does a whole that takes too long.
    ImageDownloadOrder slow = order();
    slow.total = 300ms;
    server.expect(route, Answer::body(image).pauseAfter(cut));
    EXPECT_EQ(download(slow), failed(Kind::Incomplete));
    // And another one that has the file in hand for ever.
    QFile other(part);
    ASSERT_TRUE(other.open(QIODevice::ReadWrite));
    ASSERT_EQ(flock(other.handle(), LOCK_EX), 0);
    const std::size_t requests = server.requests().size();
    EXPECT_EQ(download(what), failed(Kind::Incomplete));
    EXPECT_EQ(server.requests().size(), requests);
}

} // namespace
