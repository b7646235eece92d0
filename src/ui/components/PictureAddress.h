#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace loom
{

/// The width asked of a server for a picture that covers this many pixels: the next of a few steps, so that a window
/// being resized, and cards of nearly the same width, meet the cache instead of the server.
[[nodiscard]] int pictureWidthStep(int widthInPixels);

/// The address to load a picture from at the given width: https only, its `width` query item set or replaced and all
/// else kept. Empty for anything that is not a https address, and for no width.
[[nodiscard]] QString pictureAddress(const QString& text, int widthInPixels);

/// The rules above for QML, and the word that broken pictures are worth another try.
class PictureAddress : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    Q_INVOKABLE QString at(const QString& text, int widthInPixels) const { return pictureAddress(text, widthInPixels); }
    Q_INVOKABLE int widthStep(int widthInPixels) const { return pictureWidthStep(widthInPixels); }

    /// Makes every picture on screen that failed load again, as after the network came back.
    Q_INVOKABLE void retryBroken() { Q_EMIT retryAsked(); }

Q_SIGNALS:
    void retryAsked();
};

} // namespace loom
