#pragma once

#include "net/Work.h"

#include <QStringList>
#include <qcoro/qcorotask.h>

namespace loom
{

class Clock;
class DataFolder;

/// What the shopper has written and not sent: the draft, and what waits in the queue. Survives a crash, for which it is
/// written down a moment after each change. Main thread.
class MiraDraft
{
public:
    static constexpr const char* fileName = "lst_mira_draft";
    static constexpr qsizetype mostQueued = 20;

    MiraDraft(DataFolder& folder, Clock& clock);
    MiraDraft(const MiraDraft&) = delete;
    MiraDraft& operator=(const MiraDraft&) = delete;
    /// Writes down what waits for its moment.
    ~MiraDraft();

    void restore();

    [[nodiscard]] const QString& text() const { return m_text; }
    [[nodiscard]] const QStringList& queued() const { return m_queued; }
    void setText(const QString& text);
    void enqueue(const QString& text);
    /// Takes it out; empty where there is none.
    [[nodiscard]] QString takeQueued(qsizetype place);
    /// The file goes.
    void forget();

private:
    void change();
    [[nodiscard]] QCoro::Task<> saveSoon();
    void save();

    DataFolder& m_folder;
    Clock& m_clock;
    QString m_text;
    QStringList m_queued;
    Work m_saving;
};

} // namespace loom
