#include "stylist/voice/VoiceDevicesModel.h"

#include "MiraVoiceFixture.h"

using namespace loom;
using namespace std::chrono_literals;

namespace
{

class VoiceDevicesModelTest : public MiraVoiceFixture
{
protected:
    ~VoiceDevicesModelTest() override { model.reset(); }

    [[nodiscard]] static std::string list(const QVariantList& entries)
    {
        QStringList names;
        for (const QVariant& entry : entries)
            names.append(entry.toMap().value(QStringLiteral("id")).toString() + u'=' +
                         entry.toMap().value(QStringLiteral("name")).toString());
        return names.join(QStringLiteral(", ")).toStdString();
    }

    std::unique_ptr<VoiceDevicesModel> model = std::make_unique<VoiceDevicesModel>(devices, *call, preferences, time);
};

} // namespace

TEST_F(VoiceDevicesModelTest, AChosenDeviceIsListedEvenWhileItIsNotConnected)
{
    EXPECT_EQ(devices.watchers, 1);
    devices.microphoneList = {{.id = QStringLiteral("usb"), .name = QStringLiteral("Desk \u202emic\n")}};
    Q_EMIT devices.devicesChanged();
    model->setMicrophone(QStringLiteral("usb"));
    model->setSpeaker(QStringLiteral("hall"));
    EXPECT_EQ(list(model->microphones()), "=System default, usb=Desk mic");
    EXPECT_EQ(list(model->speakers()), "=System default, hall=Not connected");
    EXPECT_EQ(preferences.value(preferences::voiceSpeaker), QStringLiteral("hall"));
    model.reset();
    EXPECT_EQ(devices.watchers, 0);
}

TEST_F(VoiceDevicesModelTest, TheMicrophoneIsOpenOnlyWhileItIsMeasured)
{
    EXPECT_TRUE(devices.openings.empty());
    model->startMeasuring();
    EXPECT_TRUE(model->isMeasuring());
    EXPECT_FALSE(devices.openings.back().wantsSpeaker);
    devices.capture(std::vector<float>(480, 0.1F)); // 20 decibels below the loudest
    time.advance(50ms);
    EXPECT_NEAR(model->level(), 0.8, 0.01);
    model->setMicrophone(QStringLiteral("usb"));
    EXPECT_EQ(devices.openings.back().microphone, QStringLiteral("usb"));
    devices.fail(VoiceFailure::NoMicrophone);
    EXPECT_FALSE(model->isMeasuring());
    EXPECT_EQ(model->failure(),
              QStringLiteral("Couldn't start the microphone. Check that one is connected, then call again."));
    model->startMeasuring();
    EXPECT_EQ(model->failure(), QString());
    model->stopMeasuring();
    EXPECT_FALSE(devices.isOpen());
    EXPECT_EQ(model->level(), 0);
    devices.grantsAccess = false;
    model->startMeasuring();
    EXPECT_TRUE(model->failure().startsWith(QStringLiteral("Microphone access is off.")));

    // A call shows that it can be heard by now.
    devices.grantsAccess = true;
    connect();
    EXPECT_TRUE(model->isMeasuring());
    EXPECT_EQ(model->failure(), QString());
}

TEST_F(VoiceDevicesModelTest, ACallTakesTheMicrophoneOverAndShowsHowLoudItIs)
{
    model->startMeasuring();
    connect();
    ASSERT_EQ(devices.openings.size(), 2U);
    EXPECT_TRUE(devices.openings.back().wantsSpeaker);
    EXPECT_TRUE(devices.isOpen());
    hear(true, [this] {
        time.advance(50ms);
        return model->level() > 0.2;
    });
    model->stopMeasuring();
    EXPECT_TRUE(devices.isOpen());
    EXPECT_TRUE(call->isConnected());
    model->startMeasuring();
    EXPECT_EQ(devices.openings.size(), 2U);
    call->hangUp();
    EXPECT_EQ(devices.openings.size(), 3U);
    EXPECT_FALSE(devices.openings.back().wantsSpeaker);
}
