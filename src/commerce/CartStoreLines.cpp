// The lines of the cart: adding, changing and removing them.
#include "base/Clock.h"
#include "commerce/CartStore.h"

namespace loom
{

using namespace std::chrono_literals;

namespace
{

/// Clicks on a stepper come in quick succession, and become one request.
constexpr std::chrono::milliseconds clickPause = 300ms;
constexpr std::chrono::seconds highlightDuration = 4s;

} // namespace

QCoro::Task<ApiResult<AddOutcome>> CartStore::add(QString variantID, qint64 quantity)
{
    LOOM_CO_TRY(soldOut, co_await addAll({{.merchandiseId = std::move(variantID), .quantity = quantity}}));
    co_return soldOut.isEmpty() ? AddOutcome::Added : AddOutcome::SoldOut;
}

QCoro::Task<ApiResult<QStringList>> CartStore::addAll(std::vector<CartLineInput> lines)
{
    return addLines(std::move(lines), IfRefused::Recreate);
}

QCoro::Task<ApiResult<QStringList>> CartStore::addLines(std::vector<CartLineInput> lines, IfRefused ifRefused)
{
    const std::stop_token stopped = stop();
    LOOM_CO_TRY(id, co_await ensureCart());
    if (stopped.stop_requested())
        co_return Unexpected(Failure(Cancelled{}));
    const Request request(*this, id);
    auto answer = co_await m_api.addLines(id, lines, stopped);
    if (stopped.stop_requested())
        co_return Unexpected(Failure(Cancelled{}));
    if (!answer && (ifRefused == IfRefused::Report || !isCartRefused(answer.error())))
        co_return Unexpected(answer.error());
    // Another addition may have been refused meanwhile, and made a new cart already: this one belongs into that.
    if (storedID() != id)
        co_return co_await addLines(lines, IfRefused::Report);
    if (!answer)
        co_return co_await recreate(lines);
    m_failure.reset();
    const QStringList soldOut = showAdded(lines, *answer, request);
    adopt(*std::move(answer), request);
    co_return soldOut;
}

QCoro::Task<ApiResult<QStringList>> CartStore::recreate(std::vector<CartLineInput> lines)
{
    const std::stop_token stopped = stop();
    keepLines(lines);
    const Request request(*this);
    m_adopted = request.number(); // what the old cart still answers means nothing any more
    const auto promise = beginEnsuring();
    forgetCart();
    auto created = co_await m_api.create(lines, stopped);
    if (stopped.stop_requested()) {
        finish(*promise, Unexpected(Failure(Cancelled{})));
        co_return Unexpected(Failure(Cancelled{}));
    }
    if (!created) {
        endEnsuring(promise, Unexpected(created.error()));
        co_return Unexpected(created.error());
    }
    m_failure.reset();
    const QStringList soldOut = showAdded(lines, *created, request);
    const QString id = created->id;
    adoptAsOwn(*std::move(created), request);
    endEnsuring(promise, id);
    co_return soldOut;
}

void CartStore::keepLines(const std::vector<CartLineInput>& except)
{
    if (!m_cart)
        return;
    for (const CartLine& line : m_cart->lines) {
        const bool isAddedAnyway = std::ranges::any_of(
            except, [&line](const CartLineInput& other) { return other.merchandiseId == line.variantID; });
        const auto change = m_changes.find(line.id); // the row shows the wanted number
        const qint64 quantity = change == m_changes.end() ? line.quantity : change->second.wanted;
        if (quantity > 0 && !isAddedAnyway)
            m_lost.push_back({.merchandiseId = line.variantID, .quantity = quantity});
    }
}

QStringList CartStore::showAdded(const std::vector<CartLineInput>& lines, const Cart& answer, const Request& request)
{
    QStringList soldOut;
    for (const CartLineInput& wanted : lines) {
        const CartLine* const added = answer.lineOfVariant(wanted.merchandiseId);
        if (!added) {
            soldOut.append(wanted.merchandiseId);
            continue;
        }
        // How many there were is not known while answers come out of their order or the number itself changes.
        const bool isKnown = !request.isOvertaken() && !m_changes.contains(added->id);
        const CartLine* const before = m_cart && isKnown ? m_cart->line(added->id) : nullptr;
        const qint64 had = before ? before->quantity : 0;
        if (isKnown && added->quantity < had + wanted.quantity)
            m_clamped.insert(added->id);
        if (added->quantity > had)
            static_cast<void>(highlight(added->id));
        else
            soldOut.append(wanted.merchandiseId);
    }
    return soldOut;
}

QCoro::Task<> CartStore::highlight(QString lineID)
{
    const Work::Run run = m_highlighting.begin();
    m_justAdded = lineID;
    co_await m_clock.sleep(highlightDuration, run.stop());
    if (run.isStopped() || m_justAdded != lineID)
        co_return;
    m_justAdded.reset();
    Q_EMIT changed();
}

QCoro::Task<ApiResult<AddOutcome>> CartStore::restoreLostLines()
{
    const std::stop_token stopped = stop();
    std::vector<CartLineInput> lines = std::exchange(m_lost, {});
    if (lines.empty())
        co_return AddOutcome::SoldOut;
    Q_EMIT changed();
    const auto soldOut = co_await addLines(lines, IfRefused::Report);
    if (stopped.stop_requested())
        co_return Unexpected(Failure(Cancelled{}));
    if (!soldOut) {
        m_lost.insert(m_lost.begin(), lines.begin(), lines.end());
        Q_EMIT changed();
        co_return Unexpected(soldOut.error());
    }
    co_return soldOut->size() < static_cast<qsizetype>(lines.size()) ? AddOutcome::Added : AddOutcome::SoldOut;
}

void CartStore::forgetLostLines()
{
    m_lost.clear();
    Q_EMIT changed();
}

QSet<QString> CartStore::busyLines() const
{
    QSet<QString> lines;
    for (const auto& [line, change] : m_changes) {
        if (change.isSending)
            lines.insert(line);
    }
    return lines;
}

qint64 CartStore::shownQuantity(const CartLine& line) const
{
    const auto change = m_changes.find(line.id);
    return change == m_changes.end() || change->second.wanted <= 0 ? line.quantity : change->second.wanted;
}

bool CartStore::mayChange(const QString& lineID) const
{
    const auto change = m_changes.find(lineID);
    return m_cart && m_cart->line(lineID) && (change == m_changes.end() || !change->second.isSending);
}

void CartStore::setQuantity(const QString& lineID, qint64 quantity)
{
    if (quantity <= 0) {
        remove(lineID);
        return;
    }
    if (!mayChange(lineID))
        return;
    m_changes[lineID].wanted = std::min(quantity, maximumQuantity);
    static_cast<void>(changeLine(lineID, clickPause));
}

void CartStore::remove(const QString& lineID)
{
    if (!mayChange(lineID))
        return;
    m_changes[lineID].wanted = 0;
    static_cast<void>(changeLine(lineID, 0ms));
}

void CartStore::settle()
{
    QStringList waiting;
    for (const auto& [line, change] : m_changes) {
        if (!change.isSending)
            waiting.append(line);
    }
    for (const QString& line : waiting)
        static_cast<void>(changeLine(line, 0ms));
}

QCoro::Task<> CartStore::changeLine(QString lineID, std::chrono::milliseconds pause)
{
    LineChange& change = m_changes[lineID];
    const Work::Run run = change.work.begin(); // it ends with the change, wherever that is forgotten
    if (pause > 0ms) {
        Q_EMIT changed();
        co_await m_clock.sleep(pause, run.stop());
        if (run.isStopped())
            co_return;
    }
    change.isSending = true;
    const qint64 wanted = change.wanted;
    Q_EMIT changed();
    const auto id = co_await ensureCart();
    if (run.isStopped())
        co_return;
    if (!id) {
        finishChange(lineID, wanted, Unexpected(id.error()), nullptr);
        co_return;
    }
    const Request request(*this, *id);
    ApiResult<Cart> answer = Unexpected(Failure(Cancelled{}));
    if (wanted > 0)
        answer = co_await m_api.updateLine(*id, lineID, wanted, run.stop());
    else
        answer = co_await m_api.removeLine(*id, lineID, run.stop());
    if (!run.isStopped())
        finishChange(lineID, wanted, std::move(answer), &request);
}

void CartStore::finishChange(const QString& lineID, qint64 wanted, ApiResult<Cart> answer, const Request* request)
{
    m_changes.erase(lineID);
    if (!answer) {
        setFailure(answer.error());
        return;
    }
    m_failure.reset();
    const CartLine* const line = answer->line(lineID);
    if (line && line->quantity < wanted)
        m_clamped.insert(lineID);
    else
        m_clamped.remove(lineID);
    adopt(*std::move(answer), *request);
    Q_EMIT changed(); // also when the answer was overtaken
}

} // namespace loom
