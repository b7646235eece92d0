#pragma once

#include "services/RemoteConfigValues.h"

#include <QHash>
#include <QReadWriteLock>
#include <QTranslator>

namespace loom
{

class RemoteConfig;

/// Puts the store's own texts in the place of the window's: by the localisation key where a text has one, else by the
/// English. To be installed behind every other translator, so that it is asked first. Made and installed once, on the
/// main thread, by whoever has the windows; texts are looked up on any thread.
class CopyTranslator final : public QTranslator
{
    Q_OBJECT

public:
    /// `builtIn` is what the window is translated with otherwise; null while it is in English. Both outlive this.
    explicit CopyTranslator(const RemoteConfig& config, const QTranslator* builtIn = nullptr,
                            QObject* parent = nullptr);

    [[nodiscard]] QString translate(const char* context, const char* sourceText, const char* disambiguation = nullptr,
                                    int n = -1) const override;
    /// Never: Qt would not ask, and texts may come at any time.
    [[nodiscard]] bool isEmpty() const override { return false; }

Q_SIGNALS:
    /// Texts that are on screen may be others now.
    void changed();

private:
    struct Override {
        std::optional<QString> own; ///< in the language of the window
        std::optional<QString> english;

        bool operator==(const Override&) const = default;
    };
    /// By the bytes that a text of the window is known by.
    using Overrides = QHash<QByteArray, Override>;

    void update();
    [[nodiscard]] std::optional<Override> find(const char* key) const;

    const RemoteConfig& m_config;
    const QTranslator* m_builtIn;
    mutable QReadWriteLock m_lock;
    Overrides m_overrides;
};

} // namespace loom
