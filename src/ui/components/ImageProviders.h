#pragma once

class QQmlEngine;

namespace loom
{

/// Gives an engine what the components draw with: `image://icon` and `image://shadow`.
void addImageProviders(QQmlEngine& engine);

} // namespace loom
