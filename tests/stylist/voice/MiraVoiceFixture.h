#pragma once

#include "navigation/LinkResolver.h"
#include "stylist/voice/MiraVoiceSession.h"

#include "commerce/CartFixture.h"
#include "support/FakeFeatures.h"
#include "support/FakeGlobalKey.h"
#include "support/FakeVoiceAudio.h"
#include "support/Running.h"
#include "support/VoiceServer.h"

#include <QTimer>

#include <cmath>
#include <numbers>

namespace loom
{

/// A call with a service, a microphone and a loudspeaker that do what the test says.
class MiraVoiceFixture : public CartFixture
{
protected:
    MiraVoiceFixture() { begin(); }
    ~MiraVoiceFixture() override { call.reset(); }

    void begin()
    {
        call = std::make_unique<MiraVoiceSession>(MiraVoiceServices{.devices = devices,
                                                                    .muteKey = key,
                                                                    .cart = *store,
                                                                    .storefront = api,
                                                                    .market = market,
                                                                    .money = money,
                                                                    .preferences = preferences,
                                                                    .features = features,
                                                                    .resolver = resolver,
                                                                    .clock = time,
                                                                    .supportBase = service.base(),
                                                                    .opening = [this] { return opening; },
                                                                    .guideName = [] { return QStringLiteral("Mira"); },
                                                                    .makeEchoCanceller =
                                                                        [] {
                                                                            return nullptr;
                                                                        }});
        QObject::connect(call.get(), &MiraVoiceSession::opening, call.get(),
                         [this](const MiraVoiceDestination& destination) { opened.push_back(destination); });
    }
    /// The service hears that somebody calls.
    VoiceCall& dial()
    {
        call->call(false);
        return service.waitForCall(service.calls().size() + 1);
    }
    /// She is on the line.
    VoiceCall& connect()
    {
        VoiceCall& line = dial();
        line.say("ready");
        until([this] { return call->isConnected(); });
        return line;
    }
    static void until(const std::function<bool()>& isMet) { waitUntil(isMet, "what the call leads to"); }
    /// Time passes for the sound until then, in which the shopper speaks, or does not.
    void hear(bool isSpeaking, const std::function<bool()>& isMet)
    {
        QTimer meanwhile; // the sound's own threads run
        meanwhile.start(1);
        until([&] {
            std::vector<float> sound(devices.captured(0.01));
            for (float& sample : sound)
                sample = isSpeaking ? voice() : (m_sample++ % 2 == 0 ? 1e-4F : -1e-4F);
            devices.step(sound);
            return isMet();
        });
    }
    static QJsonObject event(const char* type, const char* name, const QJsonValue& value)
    {
        return {{QStringLiteral("type"), QLatin1String(type)}, {QLatin1String(name), value}};
    }
    static QJsonObject words(const char* type, const char* text, bool isFinal = true)
    {
        QJsonObject said = event(type, "text", QLatin1String(text));
        said.insert(QStringLiteral("final"), isFinal);
        return said;
    }
    /// So many seconds of Mira's voice.
    static QJsonObject speech(double seconds)
    {
        const std::vector<float> samples(static_cast<std::size_t>(seconds * voiceFormat::sampleRate), 0.1F);
        const QByteArray frame = MiraVoiceFrames::audio(samples);
        return event("tts", "b64", QJsonDocument::fromJson(frame).object().value(QStringLiteral("b64")));
    }

    VoiceServer service;
    FakeVoiceAudio devices;
    FakeGlobalKey key;
    FakeFeatures features;
    LinkResolver resolver{QStringLiteral("shop.example")};
    MiraVoiceOpening opening{.guideName = QStringLiteral("Mira"), .visitorId = QStringLiteral("v-1")};
    std::vector<MiraVoiceDestination> opened;
    std::unique_ptr<MiraVoiceSession> call;

private:
    /// Something with the pitch and the unevenness of a voice.
    float voice()
    {
        const double seconds = static_cast<double>(m_sample++) / 48000;
        double sample = 0;
        for (int harmonic = 1; harmonic <= 8; ++harmonic)
            sample += std::sin(2 * std::numbers::pi * 140 * harmonic * seconds) / harmonic;
        return static_cast<float>(0.2 * sample * (0.55 + 0.45 * std::sin(2 * std::numbers::pi * 4 * seconds)));
    }

    std::size_t m_sample = 0;
};

} // namespace loom
