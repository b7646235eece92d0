#include "services/update/ImageTransfer.h"

#include "base/Log.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <utility>

namespace loom
{

namespace
{

using Kind = ImageDownloadFailure::Kind;

constexpr int mostRedirects = 5;
/// What is taken at a time, and what may wait to be taken: then the server has to wait.
constexpr qint64 blockBytes = 256LL * 1024;
constexpr qint64 waitingBytes = 4 * blockBytes;
constexpr std::chrono::milliseconds betweenReports{100};
constexpr std::chrono::milliseconds betweenOpenings{50};
constexpr qsizetype longestValidator = 512;

bool isAllowed(const QUrl& url)
{
    return url.isValid() && url.scheme() == QLatin1String("https") && !url.host().isEmpty() && url.userInfo().isEmpty();
}

int statusOf(const QNetworkReply& reply)
{
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

/// What tells the version of a file that an answer brings from others: a strong ETag, or its date. A weak ETag does not
/// say that the bytes are the same.
QByteArray validatorOf(const QNetworkReply& reply)
{
    for (const char* const name : {"ETag", "Last-Modified"}) {
        const QByteArray validator = reply.rawHeader(name);
        const bool isPlain = std::ranges::all_of(validator, [](char c) { return c >= ' ' && c <= '~'; });
        if (!validator.isEmpty() && validator.size() <= longestValidator && isPlain && !validator.startsWith("W/"))
            return validator;
    }
    return {};
}

} // namespace

ImageTransfer::ImageTransfer(ImageDownloadOrder order, std::function<void(double)> report)
    : m_order(std::move(order))
    , m_report(std::move(report))
    , m_part(m_order.file, m_order.url)
    , m_size(m_order.size)
{
    m_silence.setSingleShot(true);
    m_silence.setInterval(m_order.silence);
    connect(&m_silence, &QTimer::timeout, this, [this] {
        qCWarning(logNet) << "an image's download was silent for too long";
        fail(Kind::Incomplete);
    });
}

ImageTransfer::~ImageTransfer() = default;

ImageTransfer::Outcome ImageTransfer::run()
{
    m_silence.start();
    if (m_order.total)
        QTimer::singleShot(*m_order.total, this, [this] { fail(Kind::Incomplete); });
    if (isAllowed(m_order.url))
        open();
    else
        fail(Kind::Incomplete);
    if (!m_outcome)
        m_loop.exec();
    return *std::move(m_outcome);
}

void ImageTransfer::requestStop()
{
    QMetaObject::invokeMethod(this, [this] { fail(Kind::Stopped); }, Qt::QueuedConnection);
}

void ImageTransfer::open()
{
    if (m_outcome)
        return;
    switch (m_part.open()) {
    case PartialImage::Opening::Taken: // by one that was stopped and has not ended yet
        QTimer::singleShot(betweenOpenings, this, &ImageTransfer::open);
        return;
    case PartialImage::Opening::Failed:
        fail(Kind::Unwritable);
        return;
    case PartialImage::Opening::Open:
        break;
    }
    if (m_order.size && m_part.size() == *m_order.size)
        finish(); // all of it came the last time, and only its end was missed
    else if (m_order.size && !m_part.hasRoomFor(*m_order.size - m_part.size()))
        fail(Kind::Unwritable);
    else
        ask(m_order.url);
}

void ImageTransfer::ask(const QUrl& url)
{
    QNetworkRequest message(url);
    message.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    message.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    message.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    message.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    // Qt 6.4 asks more than once, now and then, when it follows one itself.
    message.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    // One file gains nothing from HTTP/2, where Qt lets the server send faster than the disk takes it.
    message.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    // The bytes as they lie on the server: ranges and sizes are of those.
    message.setRawHeader("Accept-Encoding", "identity");
    m_isContinuing = m_part.size() > 0 && (!m_order.size || m_part.size() < *m_order.size);
    if (m_isContinuing) {
        message.setRawHeader("Range", "bytes=" + QByteArray::number(m_part.size()) + '-');
        message.setRawHeader("If-Range", m_part.validator());
    }
    m_isBegun = false;
    m_reply = m_access.get(message);
    m_reply->setReadBufferSize(waitingBytes);
    connect(m_reply, &QNetworkReply::metaDataChanged, this, &ImageTransfer::begin);
    connect(m_reply, &QNetworkReply::readyRead, this, &ImageTransfer::take);
    connect(m_reply, &QNetworkReply::finished, this, &ImageTransfer::finish);
}

/// Looks at the answer's head, as soon as it has come.
void ImageTransfer::begin()
{
    m_silence.start();
    const int status = statusOf(*m_reply);
    if (m_isBegun || status < 200)
        return;
    if (const auto target = redirection()) {
        ++m_redirects;
        letGo();
        ask(*target);
        return;
    }
    const bool isPart = status == 206;
    if (m_isContinuing && (status == 416 || (isPart && !isContinuation()))) {
        startOver();
        return;
    }
    if (status >= 300 || (isPart && !m_isContinuing)) {
        fail(Kind::Http, status);
        return;
    }
    m_isBegun = true;
    bool isNumber = false;
    const qint64 length = m_reply->rawHeader("Content-Length").toLongLong(&isNumber);
    const bool isAnnounced = isNumber && length >= 0;
    const qint64 announced = std::min(length, m_order.most + 1) + (isPart ? m_part.size() : 0);
    if (isAnnounced && (announced > m_order.most || announced != m_order.size.value_or(announced))) {
        m_part.discard();
        fail(m_order.size ? Kind::Incomplete : Kind::TooLarge);
        return;
    }
    if (isAnnounced)
        m_size = announced;
    const bool isReady = isPart || m_part.restart(validatorOf(*m_reply));
    if (!isReady || (m_size && !m_part.hasRoomFor(*m_size - m_part.size())))
        fail(Kind::Unwritable);
}

/// Where the answer sends us; nothing when it does not, or must not.
std::optional<QUrl> ImageTransfer::redirection() const
{
    static constexpr std::array redirections{301, 302, 303, 307, 308};
    const QByteArray location = m_reply->rawHeader("Location");
    if (std::ranges::count(redirections, statusOf(*m_reply)) == 0 || location.isEmpty() || m_redirects == mostRedirects)
        return std::nullopt;
    const QUrl target = m_reply->url().resolved(QUrl::fromEncoded(location, QUrl::StrictMode));
    return isAllowed(target) ? std::optional(target) : std::nullopt;
}

/// Whether the part that comes is of the same file, and begins where ours ends.
bool ImageTransfer::isContinuation() const
{
    static const QRegularExpression form(QStringLiteral("^bytes (\\d{1,18})-(\\d{1,18})/(\\d{1,18}|\\*)\\z"));
    const auto range = form.match(QString::fromLatin1(m_reply->rawHeader("Content-Range")));
    if (!range.hasMatch() || range.captured(1).toLongLong() != m_part.size() ||
        range.captured(2).toLongLong() < m_part.size())
        return false;
    const QByteArray validator = validatorOf(*m_reply);
    const bool isSameFile = validator.isEmpty() || validator == m_part.validator();
    const bool isWhole =
        range.captured(3) == QLatin1String("*") || range.captured(3).toLongLong() == range.captured(2).toLongLong() + 1;
    return isSameFile && isWhole;
}

void ImageTransfer::take()
{
    begin();
    while (m_reply && m_isBegun && m_reply->bytesAvailable() > 0) {
        const QByteArray bytes = m_reply->read(blockBytes);
        if (m_part.size() + bytes.size() > m_size.value_or(m_order.most)) {
            m_part.discard();
            fail(m_size ? Kind::Incomplete : Kind::TooLarge);
        } else if (!m_part.append(bytes)) {
            m_part.discard(); // what cannot be finished must not fill the disk
            fail(Kind::Unwritable);
        }
    }
    tell();
}

void ImageTransfer::finish()
{
    if (const QNetworkReply* const reply = m_reply) {
        take(); // what came with the end, also with a bad one: it need not come again
        if (m_reply != reply)
            return;
        const int status = statusOf(*m_reply);
        if (m_reply->error() != QNetworkReply::NoError || !m_isBegun) {
            qCWarning(logNet) << "an image's download failed:" << m_reply->error() << status;
            if (status >= 300)
                fail(Kind::Http, status);
            else
                fail(Kind::Incomplete);
            return;
        }
    }
    if (m_part.size() != m_size.value_or(m_part.size()))
        fail(Kind::Incomplete);
    else if (!m_part.complete())
        fail(Kind::Unwritable);
    else
        end(m_order.file);
}

void ImageTransfer::tell()
{
    if (!m_reply || !m_isBegun || !m_size || *m_size == 0)
        return;
    if (m_told.isValid() && !m_told.hasExpired(betweenReports.count()))
        return;
    m_told.start();
    m_report(static_cast<double>(m_part.size()) / static_cast<double>(*m_size));
}

/// The server does not have the rest of what lies here: all of it is asked for, which can happen only once.
void ImageTransfer::startOver()
{
    letGo();
    m_redirects = 0;
    if (m_part.restart({}))
        ask(m_order.url);
    else
        fail(Kind::Unwritable);
}

void ImageTransfer::fail(Kind kind, int status)
{
    end(Unexpected(ImageDownloadFailure{.kind = kind, .status = status}));
}

void ImageTransfer::end(Outcome outcome)
{
    if (m_outcome)
        return;
    letGo();
    m_silence.stop();
    m_outcome = std::move(outcome);
    m_loop.quit();
}

/// Nothing is heard of the answer any more.
void ImageTransfer::letGo()
{
    QNetworkReply* const reply = std::exchange(m_reply, nullptr);
    if (!reply)
        return;
    reply->disconnect(this);
    reply->abort();
    reply->deleteLater(); // it may be in the middle of telling
}

} // namespace loom
