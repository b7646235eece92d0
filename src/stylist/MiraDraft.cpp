#include "stylist/MiraDraft.h"

#include "base/Clock.h"
#include "storage/DataFolder.h"

#include <QJsonArray>
#include <QJsonObject>

namespace loom
{

namespace
{

constexpr std::chrono::milliseconds delay{400};

struct Kept {
    QString text;
    QStringList queued;
};

Kept decodeKept(const JsonReader& json)
{
    return {.text = json.optionalText("text").value_or(QString()), .queued = json.textList("queued")};
}

} // namespace

MiraDraft::MiraDraft(DataFolder& folder, Clock& clock)
    : m_folder(folder)
    , m_clock(clock)
{
}

MiraDraft::~MiraDraft()
{
    if (m_saving.isRunning())
        save();
}

void MiraDraft::restore()
{
    auto kept = m_folder.load(QLatin1String(fileName), decodeKept);
    if (!kept)
        return;
    m_text = std::move(kept->text);
    m_queued = kept->queued.mid(0, mostQueued);
}

void MiraDraft::setText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    change();
}

void MiraDraft::enqueue(const QString& text)
{
    m_queued.append(text);
    change();
}

QString MiraDraft::takeQueued(qsizetype place)
{
    if (place < 0 || place >= m_queued.size())
        return {};
    const QString taken = m_queued.takeAt(place);
    change();
    return taken;
}

void MiraDraft::forget()
{
    m_saving.stop();
    m_text.clear();
    m_queued.clear();
    m_folder.remove(QLatin1String(fileName));
}

/// The moment counts from the first change: who never pauses is not to lose everything.
void MiraDraft::change()
{
    if (!m_saving.isRunning())
        static_cast<void>(saveSoon());
}

QCoro::Task<> MiraDraft::saveSoon()
{
    const Work::Run run = m_saving.begin();
    co_await m_clock.sleep(delay, run.stop());
    if (!run.isStopped())
        save();
}

void MiraDraft::save()
{
    if (m_text.isEmpty() && m_queued.isEmpty()) {
        m_folder.remove(QLatin1String(fileName));
        return;
    }
    m_folder.save(QLatin1String(fileName),
                  QJsonObject{{QStringLiteral("text"), m_text},
                              {QStringLiteral("queued"), QJsonArray::fromStringList(m_queued)}});
}

} // namespace loom
