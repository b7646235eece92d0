#include "FakePictures.h"

#include <QBuffer>
#include <QImage>
#include <QNetworkReply>
#include <QPainter>
#include <QPainterPath>
#include <QUrlQuery>

#include <algorithm>

namespace loom
{

namespace
{

/// A dress on a hanger before an arch, in colours that follow from the address.
QByteArray drawGarment(const QUrl& url)
{
    struct Palette {
        QRgb ground, shape, cloth, shade;
    };
    static constexpr Palette palettes[] = {
        {0xffdfe1d8, 0xffd1d5c9, 0xff8fa48b, 0xff768d74}, {0xffebdad0, 0xffe0c9bc, 0xffd8aaa1, 0xffc38f86},
        {0xffe3d3c3, 0xffd6c1ac, 0xffa54b33, 0xff883a25}, {0xffe2ddd5, 0xffd4cdc2, 0xff34302f, 0xff242120},
        {0xfff0e6cf, 0xffe5d7b6, 0xffe5c77c, 0xffcdac5e}, {0xffdadfe0, 0xffcbd2d4, 0xff56667f, 0xff435169},
    };
    const Palette& palette = palettes[qHash(url.path(), 7) % std::size(palettes)];
    const int width = std::clamp(QUrlQuery(url).queryItemValue(QStringLiteral("width")).toInt(), 16, 2560);

    QImage image(width, width * 4 / 3, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(width / 600.0, width / 600.0);
    painter.fillRect(QRect(0, 0, 600, 800), QColor(palette.ground));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(palette.shape));
    painter.drawRoundedRect(QRect(96, 132, 408, 900), 204, 204);
    painter.setPen(QPen(QColor(0x8a7658), 7, Qt::SolidLine, Qt::RoundCap));
    painter.drawPolyline(QPolygon({{214, 158}, {300, 112}, {386, 158}}));
    painter.drawArc(QRect(280, 52, 36, 40), -80 * 16, 240 * 16);
    QPainterPath dress(QPointF(236, 186));
    dress.cubicTo(262, 226, 338, 226, 364, 186);
    dress.lineTo(380, 246);
    dress.cubicTo(374, 306, 364, 334, 370, 376);
    dress.cubicTo(384, 474, 428, 612, 442, 700);
    dress.cubicTo(352, 740, 246, 740, 158, 700);
    dress.cubicTo(172, 612, 216, 474, 230, 376);
    dress.cubicTo(236, 334, 226, 306, 220, 246);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(palette.cloth));
    painter.drawPath(dress);
    painter.setClipPath(dress);
    painter.setBrush(QColor(palette.shade));
    painter.drawPolygon(QPolygon({{350, 180}, {460, 180}, {460, 740}, {390, 740}}));
    painter.end();

    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

class Reply : public QNetworkReply
{
public:
    Reply(const QNetworkRequest& request, FakePictures& pictures, QObject* parent)
        : QNetworkReply(parent)
        , m_pictures(pictures)
    {
        setRequest(request);
        setUrl(request.url());
        setOperation(QNetworkAccessManager::GetOperation);
        open(QIODevice::ReadOnly);

        if (pictures.receive(url()))
            QMetaObject::invokeMethod(this, &Reply::answer, Qt::QueuedConnection);
        else
            connect(&pictures, &FakePictures::released, this, &Reply::answer);
    }

    void abort() override {}
    qint64 bytesAvailable() const override { return m_body.size() - m_read + QNetworkReply::bytesAvailable(); }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 most) override
    {
        const qint64 size = std::min(most, static_cast<qint64>(m_body.size()) - m_read);
        std::copy_n(m_body.constData() + m_read, size, data);
        m_read += size;
        return size;
    }

private:
    void answer()
    {
        const bool broken = m_pictures.isBroken(url());
        setAttribute(QNetworkRequest::HttpStatusCodeAttribute, broken ? 404 : 200);
        if (broken)
            setError(ContentNotFoundError, QStringLiteral("Not found"));
        else
            m_body = drawGarment(url());
        setFinished(true);
        Q_EMIT readyRead();
        Q_EMIT finished();
    }

    const FakePictures& m_pictures;
    QByteArray m_body;
    qint64 m_read = 0;
};

class AccessManager : public QNetworkAccessManager
{
public:
    AccessManager(FakePictures& pictures, QObject* parent)
        : QNetworkAccessManager(parent)
        , m_pictures(pictures)
    {
    }

protected:
    QNetworkReply* createRequest(Operation, const QNetworkRequest& request, QIODevice*) override
    {
        return new Reply(request, m_pictures, this);
    }

private:
    FakePictures& m_pictures;
};

} // namespace

QNetworkAccessManager* FakePictures::create(QObject* parent)
{
    return new AccessManager(*this, parent);
}

bool FakePictures::receive(const QUrl& url)
{
    const QMutexLocker locker(&m_mutex);
    m_requests.append(url.toString());
    return m_released || !url.path().endsWith(u"late");
}

bool FakePictures::isBroken(const QUrl& url) const
{
    const QMutexLocker locker(&m_mutex);
    return !m_mended && url.path().endsWith(u"broken");
}

QStringList FakePictures::requests() const
{
    const QMutexLocker locker(&m_mutex);
    return m_requests;
}

void FakePictures::release()
{
    {
        const QMutexLocker locker(&m_mutex);
        m_released = true;
    }
    Q_EMIT released();
}

void FakePictures::mend()
{
    const QMutexLocker locker(&m_mutex);
    m_mended = true;
}

void FakePictures::forget()
{
    const QMutexLocker locker(&m_mutex);
    m_requests.clear();
    m_released = false;
    m_mended = false;
}

} // namespace loom
