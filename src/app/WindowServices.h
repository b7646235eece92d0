#pragma once

#include "navigation/LinkResolver.h"
#include "navigation/StorePages.h"

#include <functional>

namespace loom
{

class Clock;
class ClosedTabs;
class FeatureGates;
class Preferences;
class Random;

/// What windows and their tabs need of the outside. Owned by the application model, which outlives them.
struct WindowServices {
    Clock& clock;
    Random& random;
    Preferences& preferences;
    ClosedTabs& closedTabs;
    const FeatureGates& features;
    LinkResolver resolver;
    StorePages storePages;
    /// Hands an address to the shopper's browser.
    std::function<void(const QUrl&)> openExternally;
    /// The modifier keys held now.
    std::function<Qt::KeyboardModifiers()> heldKeys;
};

} // namespace loom
