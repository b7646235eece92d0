#pragma once

#include <QDateTime>
#include <QString>

namespace loom
{

/// A part of the conversation that the shopper finds under a name of its own on this machine.
struct MiraTopic {
    QString id;            ///< "local-" and more
    QString title;         ///< its first words, or what the shopper called it; empty while nothing was said
    bool isNamed = false;  ///< by the shopper
    QDateTime createdAt;   ///< UTC, as below
    QDateTime lastMessage; ///< when something was said in it last, or when it was begun

    bool operator==(const MiraTopic&) const = default;
};

} // namespace loom
