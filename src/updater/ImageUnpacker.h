#pragma once

#include "updater/ImagePlan.h"

#include <QString>

namespace loom
{

/// Unpacks the squashfs image that `descriptor` is open for into a folder, which is empty and nobody else's. All of the
/// image is judged before the first byte is written, and no link is followed while writing. Files become 0644 or, when
/// their owner may execute them, 0755, folders 0755; owners, other bits and attributes of the image count for nothing.
/// After a failure something may be left in the folder. Blocks.
[[nodiscard]] Result<void, InstallResult::Code> unpackImage(int descriptor, const QString& folder,
                                                            const UnpackLimits& limits = {});

/// The code for an error number of a call that makes or writes something beside the application.
[[nodiscard]] InstallResult::Code codeOfError(int error);

} // namespace loom
