#pragma once

#include "services/update/ImageDownload.h"
#include "services/update/PartialImage.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QObject>
#include <QTimer>

namespace loom
{

/// One download of an image. Made, run and ended on the thread of the download, but for requestStop().
class ImageTransfer final : public QObject
{
    Q_OBJECT

public:
    using Outcome = Result<QString, ImageDownloadFailure>;

    /// `report` is called with what has come, from 0 to 1.
    ImageTransfer(ImageDownloadOrder order, std::function<void(double)> report);
    ~ImageTransfer() override;

    [[nodiscard]] Outcome run();
    /// Any thread.
    void requestStop();

private:
    void open();
    void ask(const QUrl& url);
    void begin();
    [[nodiscard]] std::optional<QUrl> redirection() const;
    [[nodiscard]] bool isContinuation() const;
    void take();
    void finish();
    void tell();
    void startOver();
    void fail(ImageDownloadFailure::Kind kind, int status = 0);
    void end(Outcome outcome);
    void letGo();

    ImageDownloadOrder m_order;
    std::function<void(double)> m_report;
    PartialImage m_part;
    std::optional<qint64> m_size; ///< of the whole image, as soon as it is known
    QNetworkAccessManager m_access;
    QNetworkReply* m_reply = nullptr; ///< null while nothing is asked
    int m_redirects = 0;
    bool m_isContinuing = false; ///< only what is missing was asked for
    bool m_isBegun = false;      ///< what comes is the image's
    QTimer m_silence;
    QElapsedTimer m_told;
    QEventLoop m_loop;
    std::optional<Outcome> m_outcome;
};

} // namespace loom
