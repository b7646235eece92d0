#pragma once

class QUrl;

namespace loom
{

/// Hands an address to the shopper's browser. What the programs on the way there have to say, the address among it,
/// does not reach this application's log. Main thread.
void openInBrowser(const QUrl& url);

} // namespace loom
