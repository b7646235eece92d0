#include "kit/StylistJourney.h"

namespace loom
{

QQuickItem* StylistJourney::field(const WindowDriver& window)
{
    return window.await(QStringLiteral("input"), window.await(QStringLiteral("composer")));
}

void StylistJourney::awaitThread() const
{
    waitUntil([this] { return field(window)->hasActiveFocus(); }, "the keyboard writes to her");
    waitUntil([this] { return !mira().isLoading(); }, "the thread is there");
}

void StylistJourney::openPage(const Circumstances& circumstances)
{
    start({}, circumstances);
    window.click(QStringLiteral("section.mira"));
    window.awaitPage(QStringLiteral("Mira"));
    awaitThread();
}

void StylistJourney::openDock() const
{
    window.press(QStringLiteral("Ctrl+Shift+M"));
    awaitThread();
}

void StylistJourney::say(const QString& words) const
{
    window.click(field(window));
    window.type(words);
    window.press(QStringLiteral("Return"));
}

void StylistJourney::awaitAnswer() const
{
    waitUntil([this] { return !mira().isReplying(); }, "she has replied");
    window.awaitFrame();
}

void StylistJourney::sayAndAwait(const QString& words) const
{
    say(words);
    awaitAnswer();
    EXPECT_EQ(mira().failure(), QString());
}

void StylistJourney::retryLast() const
{
    const QQuickItem* const problem = window.await(QStringLiteral("problem"));
    window.click(window.await(QStringLiteral("retry"), problem->parentItem()->parentItem()));
}

int StylistJourney::timesShown(const QString& text, const WindowDriver& window)
{
    const QList<QQuickItem*> shown = window.findAll(QStringLiteral("text"), window.await(QStringLiteral("thread")));
    return static_cast<int>(
        std::ranges::count_if(shown, [&](const QQuickItem* item) { return item->property("text") == text; }));
}

void StylistJourney::awaitMessage(const QString& text, const WindowDriver& window)
{
    waitUntil([&] { return timesShown(text, window) == 1; }, text.toStdString() + " stands there once");
}

void StylistJourney::fill(const QString& name, const QString& text) const
{
    const QQuickItem* const input = window.await(QStringLiteral("input"), window.await(name));
    window.click(window.await(name));
    waitUntil([input] { return input->hasActiveFocus(); }, "the field has the keyboard");
    window.press(QStringLiteral("Ctrl+A"));
    window.type(text);
}

void StylistJourney::signIn() const
{
    window.click(QStringLiteral("account"));
    window.click(window.await(QStringLiteral("tab1"), window.await(QStringLiteral("modes"))));
    fill(QStringLiteral("email"), QStringLiteral("ines.marinho@example.com"));
    fill(QStringLiteral("password"), QStringLiteral("atelier24"));
    window.press(QStringLiteral("Return"));
    window.awaitGone(QStringLiteral("signInSheet"));
    waitUntil([this] { return shop->model().auth()->isSignedIn(); }, "Ines is signed in");
}

} // namespace loom
