#pragma once

#include "kit/Journey.h"
#include "stylist/MiraChatModel.h"

namespace loom
{

/// A journey in which the shopper writes to the stylist.
class StylistJourney : public Journey
{
protected:
    [[nodiscard]] MiraChatModel& mira() const { return *shop->model().mira(); }
    /// How many messages there are.
    [[nodiscard]] int count() const { return mira().thread()->count(); }
    /// Where one writes to her.
    [[nodiscard]] static QQuickItem* field(const WindowDriver& window);
    void awaitThread() const;
    /// Opens the application with her page, or her panel in the window that is there.
    void openPage(const Circumstances& circumstances = {});
    void openDock() const;

    void say(const QString& words) const;
    void awaitAnswer() const;
    void sayAndAwait(const QString& words) const;
    /// Presses the button below the message that is not confirmed.
    void retryLast() const;
    /// What she says next.
    void script(const QJsonArray& next) { store.setStylist({{QStringLiteral("next"), next}}); }

    /// What she was written last.
    [[nodiscard]] QJsonObject lastMessage() { return store.messages().last().toObject(); }
    [[nodiscard]] QString lastBody() { return lastMessage()[u"body"].toString(); }
    /// How often a text stands in the conversation.
    [[nodiscard]] static int timesShown(const QString& text, const WindowDriver& window);
    [[nodiscard]] int timesShown(const QString& text) const { return timesShown(text, window); }
    /// Waits until it stands there, once.
    static void awaitMessage(const QString& text, const WindowDriver& window);
    void awaitMessage(const QString& text) const { awaitMessage(text, window); }

    /// Types into a field.
    void fill(const QString& name, const QString& text) const;
    void signIn() const;
};

} // namespace loom
