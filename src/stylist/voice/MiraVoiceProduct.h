#pragma once

#include <QString>

namespace loom
{

/// A piece that the stylist shows during a call, in the service's own words.
struct MiraVoiceProduct {
    QString handle;
    QString title;
    QString imageURL; ///< "image" on the wire; empty where there is none
    QString price;    ///< as the service wrote it: a sum in US dollars, or words

    bool operator==(const MiraVoiceProduct&) const = default;
};

} // namespace loom
