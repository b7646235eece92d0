#include "stylist/voice/MiraVoiceSession.h"

#include "base/Clock.h"
#include "catalog/DisplayText.h"
#include "commerce/CartStore.h"

namespace loom
{

namespace
{

constexpr qsizetype longestName = 60;
constexpr QLatin1String variantPrefix("gid://shopify/ProductVariant/");

} // namespace

void MiraVoiceSession::takeTurn(const std::function<void(MiraVoiceTurnTaking& turns)>& step)
{
    const MiraVoicePhase before = phase();
    step(m_turns);
    if (phase() == before)
        return;
    if (phase() == MiraVoicePhase::Thinking)
        m_thinkingSince = m_services.clock.now();
    Q_EMIT stateChanged();
}

void MiraVoiceSession::follow(const MiraVoiceEvent& event)
{
    if (!isActive())
        return;
    const bool isOfBeginning = std::holds_alternative<MiraVoiceEvent::Ready>(event.content) ||
                               std::holds_alternative<MiraVoiceEvent::Session>(event.content) ||
                               std::holds_alternative<MiraVoiceEvent::Ended>(event.content) ||
                               std::holds_alternative<MiraVoiceEvent::Error>(event.content);
    if (isConnected() || isOfBeginning)
        std::visit([this](const auto& content) { happened(content); }, event.content);
}

void MiraVoiceSession::happened(const MiraVoiceEvent::Ready& /*ready*/)
{
    if (isConnected())
        return;
    m_placing.stop();
    m_connectedAt = m_services.clock.now();
    m_began = m_services.clock.elapsed();
    m_audio.setSending(true);
    static_cast<void>(tick());
    takeTurn([](MiraVoiceTurnTaking& turns) { turns.ready(); });
    Q_EMIT durationChanged();
}

void MiraVoiceSession::happened(const MiraVoiceEvent::Recognised& recognised)
{
    m_transcript.say(MiraVoiceTurn::Role::User, recognised.text, recognised.isFinal);
    takeTurn([&recognised](MiraVoiceTurnTaking& turns) { turns.recognised(recognised.isFinal); });
}

void MiraVoiceSession::happened(const MiraVoiceEvent::Speech& speech)
{
    if (speech.samples.empty() || !m_turns.takeSpeech(m_services.clock.elapsed()))
        return;
    m_audio.play(speech.samples);
}

void MiraVoiceSession::happened(const MiraVoiceEvent::Line& line)
{
    m_transcript.say(MiraVoiceTurn::Role::Mira, line.text, line.isFinal);
    if (!line.isFinal)
        return;
    m_audio.endOfSpeech();
    takeTurn([this](MiraVoiceTurnTaking& turns) { turns.lineEnded(m_audio.isPlaying()); });
}

void MiraVoiceSession::happened(const MiraVoiceEvent::Products& products)
{
    m_shelf.show(products.products);
}

void MiraVoiceSession::happened(const MiraVoiceEvent::Cart& cart)
{
    static_cast<void>(add(cart));
}

QCoro::Task<> MiraVoiceSession::add(MiraVoiceEvent::Cart cart)
{
    const std::stop_token stop = m_call.get_token();
    if (!cart.variantID.startsWith(variantPrefix)) {
        static_cast<void>(show({.kind = MiraVoiceToast::Kind::NotAdded}));
        co_return;
    }
    const auto outcome = co_await m_services.cart.add(cart.variantID, 1);
    if (stop.stop_requested() || (!outcome && outcome.error().isCancelled()))
        co_return;
    if (!outcome || *outcome != AddOutcome::Added) {
        static_cast<void>(show({.kind = MiraVoiceToast::Kind::NotAdded}));
        co_return;
    }
    const auto& shown = m_services.cart.cart();
    const CartLine* const line = shown ? shown->lineOfVariant(cart.variantID) : nullptr;
    const bool isUntitled = displayLine(cart.title, 1).isEmpty();
    static_cast<void>(
        show({.kind = MiraVoiceToast::Kind::Added, .subject = isUntitled && line ? line->productTitle : cart.title}));
}

void MiraVoiceSession::happened(const MiraVoiceEvent::Navigation& navigation)
{
    const auto destination = miraVoiceDestination(navigation, m_services.resolver);
    if (!destination)
        return;
    static_cast<void>(show({.kind = MiraVoiceToast::Kind::Opening, .subject = destination->name}));
    Q_EMIT opening(*destination);
}

void MiraVoiceSession::happened(const MiraVoiceEvent::Session& session)
{
    const QString name = displayLine(session.guideName, longestName);
    if (!name.isEmpty() && std::exchange(m_guideName, name) != name)
        Q_EMIT stateChanged();
}

void MiraVoiceSession::happened(const MiraVoiceEvent::Ended& /*ended*/)
{
    end(isConnected() ? std::nullopt : std::optional(MiraVoiceFailure::CannotStart));
}

void MiraVoiceSession::happened(const MiraVoiceEvent::Error& error)
{
    if (error.code == QLatin1String("busy")) {
        end(MiraVoiceFailure::Busy);
    } else if (!isConnected()) {
        end(MiraVoiceFailure::CannotStart);
    } else {
        takeTurn([](MiraVoiceTurnTaking& turns) { turns.hiccup(); });
        static_cast<void>(show({.kind = MiraVoiceToast::Kind::Hiccup}));
    }
}

void MiraVoiceSession::closed(bool isNormal)
{
    if (!isActive())
        return;
    if (!isConnected())
        end(MiraVoiceFailure::CannotStart);
    else
        end(isNormal ? std::nullopt : std::optional(MiraVoiceFailure::Dropped));
}

QCoro::Task<> MiraVoiceSession::show(MiraVoiceToast toast)
{
    const Work::Run run = m_showing.begin();
    m_toast = std::move(toast);
    Q_EMIT toastChanged();
    if (run.isStopped())
        co_return;
    co_await m_services.clock.sleep(toastTime, run.stop());
    if (!run.isStopped())
        dropToast();
}

void MiraVoiceSession::dropToast()
{
    m_showing.stop();
    if (std::exchange(m_toast, {}))
        Q_EMIT toastChanged();
}

} // namespace loom
