#pragma once

#include "stylist/voice/VoiceAudio.h"

#include <QString>

namespace loom
{

/// Why a call did not come about, or has ended.
enum class MiraVoiceFailure {
    CannotStart,
    Busy,
    Hiccup, ///< the call goes on
    Dropped,
    MicrophoneOff,
    NoMicrophone,
};

[[nodiscard]] MiraVoiceFailure miraVoiceFailure(VoiceFailure failure);

/// In the language of the window.
[[nodiscard]] QString miraVoiceFailureText(MiraVoiceFailure failure);

} // namespace loom
