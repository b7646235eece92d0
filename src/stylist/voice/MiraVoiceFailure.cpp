#include "stylist/voice/MiraVoiceFailure.h"

#include <QCoreApplication>

namespace loom
{

MiraVoiceFailure miraVoiceFailure(VoiceFailure failure)
{
    return failure == VoiceFailure::AccessRefused ? MiraVoiceFailure::MicrophoneOff : MiraVoiceFailure::NoMicrophone;
}

QString miraVoiceFailureText(MiraVoiceFailure failure)
{
    switch (failure) {
    case MiraVoiceFailure::CannotStart:
        return QCoreApplication::translate("Loomstreet", "Mira can't pick up right now. Try again in a moment.");
    case MiraVoiceFailure::Busy:
        return QCoreApplication::translate("Loomstreet", "Mira is on another call. Try again in a minute.");
    case MiraVoiceFailure::Hiccup:
        return QCoreApplication::translate("Loomstreet", "The line hiccuped. Say that again?");
    case MiraVoiceFailure::Dropped:
        return QCoreApplication::translate("Loomstreet", "The line dropped. Call again to keep talking.");
    case MiraVoiceFailure::MicrophoneOff:
        return QCoreApplication::translate("Loomstreet",
                                           "Microphone access is off. Turn it on in System Settings › Privacy & "
                                           "Security › Microphone, then call again.");
    case MiraVoiceFailure::NoMicrophone:
        return QCoreApplication::translate(
            "Loomstreet", "Couldn't start the microphone. Check that one is connected, then call again.");
    }
    return {};
}

} // namespace loom
