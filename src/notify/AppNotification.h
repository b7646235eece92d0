#pragma once

#include <QMetaType>
#include <QString>

namespace loom
{

/// What the banner and the desktop show: one piece of news, whoever sent it.
struct AppNotification {
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString body MEMBER body)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QString type MEMBER type)
    Q_PROPERTY(QString link MEMBER link)
    Q_PROPERTY(QString accountID MEMBER accountID)
    Q_PROPERTY(bool isAboutSupport READ isAboutSupport)
    Q_PROPERTY(bool isAboutUpdate READ isAboutUpdate)

public:
    static constexpr const char* updateFailedID = "self-update-failed";

    QString id;    ///< what the ledger knows it by
    QString title; ///< the first line
    QString body;  ///< the second one
    QString symbol;
    QString type;      ///< "support", "order", "notice", "preview", "digest", or as the server says
    QString link;      ///< where a click leads; empty for nowhere
    QString accountID; ///< whose it is; empty where it is nobody's in particular

    /// It leads to the conversation with customer service, and needs no link.
    [[nodiscard]] bool isAboutSupport() const;
    /// That the application could not be replaced, which is put right at the top of the window.
    [[nodiscard]] bool isAboutUpdate() const;

    bool operator==(const AppNotification&) const = default;
};

} // namespace loom
