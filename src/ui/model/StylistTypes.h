#pragma once

#include "stylist/MeasurementsModel.h"
#include "stylist/MiraChatModel.h"
#include "stylist/MiraLookModel.h"
#include "stylist/MiraThreadModel.h"
#include "stylist/MiraTopicsModel.h"
#include "stylist/MiraWeatherStore.h"
#include "stylist/SizeAdviceModel.h"
#include "stylist/WardrobeModel.h"
#include "stylist/voice/MiraVoiceSession.h"
#include "stylist/voice/VoiceDevicesModel.h"
#include "support/SupportChatModel.h"
#include "support/SupportThreadModel.h"

#include <QtQml/qqmlregistration.h>

// Declares to pages the types of the conversations with the stylist and with customer service. None of them is made in
// QML.

struct MeasurementsModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::MeasurementsModel)
    QML_NAMED_ELEMENT(MeasurementsModel)
    QML_UNCREATABLE("made by the application model")
};

struct MiraChatModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::MiraChatModel)
    QML_NAMED_ELEMENT(MiraChatModel)
    QML_UNCREATABLE("made by the application model")
};

struct MiraLookModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::MiraLookModel)
    QML_NAMED_ELEMENT(MiraLookModel)
    QML_UNCREATABLE("made by the application model")
};

struct MiraThreadModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::MiraThreadModel)
    QML_NAMED_ELEMENT(MiraThreadModel)
    QML_UNCREATABLE("made by the chat with the stylist")
};

struct MiraTopicsModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::MiraTopicsModel)
    QML_NAMED_ELEMENT(MiraTopicsModel)
    QML_UNCREATABLE("made by the chat with the stylist")
};

struct MiraWeatherStoreForQml {
    Q_GADGET
    QML_FOREIGN(loom::MiraWeatherStore)
    QML_NAMED_ELEMENT(MiraWeatherStore)
    QML_UNCREATABLE("made by the application model")
};

struct SizeAdviceModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::SizeAdviceModel)
    QML_NAMED_ELEMENT(SizeAdviceModel)
    QML_UNCREATABLE("made by the application model")
};

struct WardrobeModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::WardrobeModel)
    QML_NAMED_ELEMENT(WardrobeModel)
    QML_UNCREATABLE("made by the chat with the stylist")
};

struct MiraVoiceSessionForQml {
    Q_GADGET
    QML_FOREIGN(loom::MiraVoiceSession)
    QML_NAMED_ELEMENT(MiraVoiceSession)
    QML_UNCREATABLE("made by the application model")
};

struct MiraVoiceTranscriptForQml {
    Q_GADGET
    QML_FOREIGN(loom::MiraVoiceTranscript)
    QML_NAMED_ELEMENT(MiraVoiceTranscript)
    QML_UNCREATABLE("made by the call")
};

struct VoiceDevicesModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::VoiceDevicesModel)
    QML_NAMED_ELEMENT(VoiceDevicesModel)
    QML_UNCREATABLE("made by the application model")
};

namespace MiraVoicePhasesForQml
{
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(loom::MiraVoicePhases)
QML_NAMED_ELEMENT(MiraVoicePhases)
} // namespace MiraVoicePhasesForQml

struct SupportChatModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::SupportChatModel)
    QML_NAMED_ELEMENT(SupportChatModel)
    QML_UNCREATABLE("made by the application model")
};

struct SupportThreadModelForQml {
    Q_GADGET
    QML_FOREIGN(loom::SupportThreadModel)
    QML_NAMED_ELEMENT(SupportThreadModel)
    QML_UNCREATABLE("made by the chat with customer service")
};
