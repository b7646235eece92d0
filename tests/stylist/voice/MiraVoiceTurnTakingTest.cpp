#include "stylist/voice/MiraVoiceTurnTaking.h"

#include <QMetaEnum>
#include <QStringList>

#include <gtest/gtest.h>

#include <map>

using namespace loom;

namespace
{

/// What happens, by the names that the table uses; what is answered follows the phase.
class Turns
{
public:
    QString after(const QString& event)
    {
        static const std::map<QString, void (MiraVoiceTurnTaking::*)()> plain{
            {QStringLiteral("dial"), &MiraVoiceTurnTaking::dial},
            {QStringLiteral("ready"), &MiraVoiceTurnTaking::ready},
            {QStringLiteral("hiccup"), &MiraVoiceTurnTaking::hiccup},
            {QStringLiteral("plays"), &MiraVoiceTurnTaking::playbackBegan},
            {QStringLiteral("played"), &MiraVoiceTurnTaking::playbackEnded},
            {QStringLiteral("end"), &MiraVoiceTurnTaking::end}};
        QString answer;
        if (const auto known = plain.find(event); known != plain.end())
            (m_turns.*known->second)();
        else if (event == QLatin1String("tts"))
            answer = m_turns.takeSpeech(m_now) ? u'+' : u'-';
        else if (event.endsWith(u's')) // such as "2s"
            m_now += std::chrono::seconds(event.chopped(1).toInt());
        else if (event.toLower() == QLatin1String("asr"))
            m_turns.recognised(event == QLatin1String("ASR"));
        else if (event.endsWith(QLatin1String("line")))
            m_turns.lineEnded(event == QLatin1String("line"));
        else if (event == QLatin1String("silence"))
            m_turns.speechEnded(m_now);
        else
            m_turns.speechBegan(event == QLatin1String("barge-in"));
        const char* const phase = QMetaEnum::fromType<MiraVoicePhase>().valueToKey(static_cast<int>(m_turns.phase()));
        return QString::fromLatin1(phase).toLower() + answer;
    }

private:
    MiraVoiceTurnTaking m_turns;
    MiraVoiceTurnTaking::Time m_now{0};
};

struct Row {
    const char* what;
    const char* events;   ///< after a call that was answered, except where it begins with "dial"
    const char* expected; ///< the phase after the last so many
};

constexpr std::array rows{
    Row{"a turn", "asr ASR tts plays line played", "listening thinking thinking+ speaking speaking listening"},
    Row{"a greeting", "tts plays tts line played", "listening+ speaking speaking+ speaking listening"},
    Row{"before she is on the line", "dial tts ASR plays hiccup barge-in ready",
        "connecting connecting- connecting connecting connecting connecting listening"},
    Row{"after the end", "ASR end tts plays ASR ready", "idle idle- idle idle idle"},
    Row{"an answer without a sound", "ASR mute-line", "listening"},
    Row{"an answer whose sound has yet to begin", "ASR tts line plays", "thinking+ thinking speaking"},
    Row{"what was said before she began is understood late", "tts plays ASR played tts plays played",
        "speaking thinking thinking+ speaking listening"},
    Row{"a hiccup while she thinks", "ASR hiccup", "listening"},
    Row{"a hiccup while she speaks", "ASR tts plays hiccup played", "speaking listening"},
    Row{"the shopper goes on while she thinks", "ASR voice silence", "thinking thinking"},
    Row{"the rest of what was interrupted", "ASR tts plays barge-in tts silence tts asr tts ASR tts plays",
        "listening listening- listening listening- listening listening- thinking thinking+ speaking"},
    Row{"an interruption that is heard to its end after the sound was stopped", "tts plays barge-in played ASR",
        "listening listening thinking"},
    Row{"a cough", "tts plays barge-in silence 1s tts 1s tts plays", "listening- listening listening+ speaking"},
    Row{"words take longer to be understood than a cough", "tts plays barge-in asr silence 2s tts ASR tts",
        "listening- thinking thinking+"},
    Row{"words that are never understood", "tts plays barge-in asr silence 7s tts 1s tts plays",
        "listening- listening listening+ speaking"},
    Row{"a hiccup instead of the words of an interruption", "tts plays barge-in asr silence hiccup tts 2s tts",
        "listening listening- listening listening+"},
    Row{"a cough, and then words", "tts plays barge-in silence 1s voice 2s tts silence 1s tts ASR tts",
        "listening- listening listening listening- thinking thinking+"},
    Row{"a long speech is no cough", "tts plays barge-in 2s 2s tts", "listening-"},
    Row{"another call", "ASR tts plays barge-in end dial ready tts", "connecting listening listening+"},
};

} // namespace

TEST(MiraVoiceTurnTakingTest, ThePhaseFollowsTheTurnsAndWhatWasInterruptedIsNotPlayed)
{
    for (const Row& row : rows) {
        Turns turns;
        QStringList phases;
        const QStringList events = QString::fromLatin1(row.events).split(u' ');
        if (events.first() != QLatin1String("dial")) {
            turns.after(QStringLiteral("dial"));
            turns.after(QStringLiteral("ready"));
        }
        for (const QString& event : events)
            phases.append(turns.after(event));
        const QStringList expected = QString::fromLatin1(row.expected).split(u' ');
        EXPECT_EQ(phases.mid(phases.size() - expected.size()), expected) << row.what;
    }
}
