#pragma once

#include "base/Random.h"

#include <QList>

namespace loom
{

/// Gives the UUIDs it was told to give, then "00000000-0000-4000-8000-000000000001" and so on. Its bytes count up.
class FakeRandom final : public Random
{
public:
    void foretell(const QUuid& uuid) { m_foretold.append(uuid); }

    [[nodiscard]] QUuid uuid() override
    {
        if (!m_foretold.isEmpty())
            return m_foretold.takeFirst();
        return QUuid(QStringLiteral("00000000-0000-4000-8000-%1").arg(++m_given, 12, 16, QLatin1Char('0')));
    }

    [[nodiscard]] QByteArray bytes(qsizetype count) override
    {
        QByteArray drawn;
        while (drawn.size() < count)
            drawn.append(static_cast<char>(m_byte++));
        return drawn;
    }

private:
    QList<QUuid> m_foretold;
    int m_given = 0;
    int m_byte = 0;
};

} // namespace loom
