#include "platform/Activation.h"

namespace loom
{

Activation readLaunch()
{
    return {.links = {},
            .action = {},
            .startupId = qEnvironmentVariable("DESKTOP_STARTUP_ID"),
            .activationToken = qEnvironmentVariable("XDG_ACTIVATION_TOKEN")};
}

} // namespace loom
