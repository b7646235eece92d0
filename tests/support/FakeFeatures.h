#pragma once

#include "base/FeatureGates.h"

#include <set>

namespace loom
{

/// Features that a test switches off and on.
class FakeFeatures final : public FeatureGates
{
public:
    [[nodiscard]] bool isEnabled(Feature feature) const override { return !off.contains(feature); }

    std::set<Feature> off;
};

} // namespace loom
