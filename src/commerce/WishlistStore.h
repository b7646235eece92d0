#pragma once

#include "commerce/KeptPieces.h"

#include <QJsonObject>

namespace loom
{

class Preferences;
class SessionSource;
class WidgetClient;

/// The pieces the shopper saved, and the summary of them that the backend is told. One per process; main thread.
class WishlistStore final : public loom::KeptPieces // in full, as QML knows it
{
    Q_OBJECT

public:
    WishlistStore(DataFolder& folder, Preferences& preferences, WidgetClient& widget, const SessionSource& session,
                  Clock& clock, QObject* parent = nullptr);

    /// Whether it was newly added.
    bool add(const ProductListItem& item);
    /// For hearts: `item` holds a card.
    Q_INVOKABLE void toggle(const QVariant& item);

private:
    void wantSync();
    [[nodiscard]] QCoro::Task<> sync();

    Preferences& m_preferences;
    WidgetClient& m_widget;
    const SessionSource& m_session;
    Clock& m_clock;
    Work m_syncing;
};

} // namespace loom
