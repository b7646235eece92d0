#pragma once

#include <QString>

#include <array>
#include <utility>

namespace loom
{

/// What the store can switch off from afar.
enum class Feature {
    MiraVoice,
    ClosetGenerate,
    ImageSearch,
    VessaCompose,
    SignedCheckout,
    CrashReports,
    AutoUpdate,
    PrefetchImages,
};

/// Each feature with the key it has on the wire, in the order of the store's own list.
inline constexpr std::array<std::pair<Feature, const char*>, 8> featureKeys{{
    {Feature::MiraVoice, "miraVoice"},
    {Feature::ClosetGenerate, "closetGenerate"},
    {Feature::ImageSearch, "imageSearch"},
    {Feature::VessaCompose, "vessaCompose"},
    {Feature::SignedCheckout, "signedCheckout"},
    {Feature::CrashReports, "crashReports"},
    {Feature::AutoUpdate, "autoUpdate"},
    {Feature::PrefetchImages, "prefetchImages"},
}};

/// Tells whether a feature may be used now. Main thread.
class FeatureGates
{
public:
    FeatureGates() = default;
    FeatureGates(const FeatureGates&) = delete;
    FeatureGates& operator=(const FeatureGates&) = delete;
    virtual ~FeatureGates() = default;

    [[nodiscard]] virtual bool isEnabled(Feature feature) const = 0;
};

} // namespace loom
