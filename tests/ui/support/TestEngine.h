#pragma once

class QQmlEngine;

namespace loom
{

/// Gives an engine all that the components need, and the test module "Loomstreet.Testing" with the singletons
/// `Pictures` and `AccessibleProbe`. Call after the application object exists.
void prepareTestEngine(QQmlEngine& engine);

} // namespace loom
