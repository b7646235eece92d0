#pragma once

#include "discovery/RecoRail.h"

#include <QByteArray>

namespace loom
{

/// The rails of the home as they are kept on this machine, with the recommendations of each.
struct HomeRails {
    struct Rail {
        RecoRail::Source source;
        std::vector<RecoProduct> products;
    };

    QString department; ///< they were recommended for
    std::vector<Rail> rails;
};

[[nodiscard]] HomeRails decodeHomeRails(const JsonReader& json);
/// The snapshot as a file. Any thread.
[[nodiscard]] QByteArray homeRailsFile(const HomeRails& rails, const QDateTime& savedAt);

} // namespace loom
