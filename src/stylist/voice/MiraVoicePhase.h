#pragma once

#include <QObject>

namespace loom
{

/// The enumerations of a call, as QML names them.
namespace MiraVoicePhases
{
Q_NAMESPACE

enum class Phase { Idle, Connecting, Listening, Thinking, Speaking };
Q_ENUM_NS(Phase)
/// The form of the call's window.
enum class Mode { Full, Mini, Floating };
Q_ENUM_NS(Mode)
} // namespace MiraVoicePhases

using MiraVoicePhase = MiraVoicePhases::Phase;
using MiraVoiceMode = MiraVoicePhases::Mode;

} // namespace loom
