#include "stylist/voice/MiraVoiceTranscript.h"

#include "support/Printing.h"

#include <QAbstractItemModelTester>

using namespace loom;

namespace
{

constexpr auto me = MiraVoiceTurn::Role::User;
constexpr auto mira = MiraVoiceTurn::Role::Mira;

class MiraVoiceTranscriptTest : public testing::Test
{
protected:
    MiraVoiceTranscriptTest()
    {
        QObject::connect(&transcript, &MiraVoiceTranscript::finished, [this](const QString& text, bool isMine) {
            heard.append((isMine ? QStringLiteral("me:") : QStringLiteral("mira:")) + text);
        });
        QObject::connect(&transcript, &MiraVoiceTranscript::changed, [this] { ++changes; });
    }

    /// The rows as a view reads them: "me:" or "mira:", the text, and "…" behind what is not final.
    [[nodiscard]] QStringList rows() const
    {
        QStringList list;
        for (int row = 0; row < transcript.rowCount(); ++row) {
            const QModelIndex index = transcript.index(row);
            list.append((index.data(MiraVoiceTranscript::IsMineRole).toBool() ? QStringLiteral("me:")
                                                                              : QStringLiteral("mira:")) +
                        index.data(MiraVoiceTranscript::TextRole).toString() +
                        (index.data(MiraVoiceTranscript::IsFinalRole).toBool() ? QString() : QStringLiteral("…")));
        }
        return list;
    }

    MiraVoiceTranscript transcript;
    QAbstractItemModelTester tester{&transcript, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QStringList heard; ///< the lines that became final
    int changes = 0;
};

} // namespace

TEST_F(MiraVoiceTranscriptTest, EachSpeakersLineIsRewrittenUntilItIsFinal)
{
    transcript.say(me, "a red", false);
    transcript.say(mira, "Sure", false);
    transcript.say(me, "a red dress", true);
    EXPECT_EQ(rows(), (QStringList{"me:a red dress", "mira:Sure…"}));
    EXPECT_EQ(transcript.lastText(), "Sure");
    EXPECT_FALSE(transcript.isLastMine());
    transcript.say(me, "or", false);
    transcript.say(mira, "Sure, look.", true);
    EXPECT_EQ(rows(), (QStringList{"me:a red dress", "mira:Sure, look.", "me:or…"}));
    EXPECT_EQ(transcript.lastText(), "or");
    EXPECT_TRUE(transcript.isLastMine());
    transcript.say(mira, "And", true);
    EXPECT_EQ(transcript.count(), 4);
    EXPECT_EQ(heard, (QStringList{"me:a red dress", "mira:Sure, look.", "mira:And"}));
}

TEST_F(MiraVoiceTranscriptTest, WhatSaysNothingNewChangesNothing)
{
    transcript.say(me, "", false);
    transcript.say(mira, "", true);
    EXPECT_EQ(changes, 0);
    transcript.say(mira, "Well", false);
    transcript.say(mira, "Well", false);
    EXPECT_EQ(changes, 1);
    transcript.say(mira, "", true); // complete as it stands
    transcript.say(mira, "", true);
    EXPECT_EQ(rows(), QStringList{"mira:Well"});
    EXPECT_EQ(heard, QStringList{"mira:Well"});
    EXPECT_EQ(changes, 2);
}

TEST_F(MiraVoiceTranscriptTest, ALineThatWillNotBeFinishedStaysAsItIs)
{
    transcript.say(me, "wait", false);
    transcript.say(mira, "This one", false);
    transcript.settle();
    transcript.settle();
    transcript.say(mira, "Another", false);
    EXPECT_EQ(rows(), (QStringList{"me:wait", "mira:This one", "mira:Another…"}));
    EXPECT_EQ(heard, (QStringList{"me:wait", "mira:This one"}));
    transcript.clear();
    EXPECT_EQ(transcript.count(), 0);
    EXPECT_EQ(transcript.lastText(), "");
}

TEST(MiraVoiceTranscriptSizeTest, TheOldestLinesGoWhenThereAreTooMany)
{
    MiraVoiceTranscript transcript;
    for (std::size_t i = 0; i < MiraVoiceTranscript::mostTurns; ++i)
        transcript.say(me, QString::number(i), true);
    const QAbstractItemModelTester tester(&transcript, QAbstractItemModelTester::FailureReportingMode::Fatal);
    transcript.say(mira, "last", true);
    EXPECT_EQ(transcript.turns().size(), MiraVoiceTranscript::mostTurns);
    EXPECT_EQ(transcript.turns().front().text, "1");
    EXPECT_EQ(transcript.lastText(), "last");
}
