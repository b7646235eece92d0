#include "kit/WindowDriver.h"

#include "support/Running.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QtTest>
#include <private/qquickitem_p.h>
#include <qpa/qwindowsysteminterface.h>

#include <memory>
#include <stdexcept>

namespace loom
{

namespace
{

bool canBeSeen(const QQuickItem& item)
{
    return item.isVisible() && item.opacity() > 0 && item.width() > 0 && item.height() > 0;
}

/// Goes through an item and what is in it, in the order of painting, until `look` says that it has seen enough.
bool walk(const QQuickItem& item, const std::function<bool(QQuickItem&)>& look)
{
    if (!item.isVisible() || item.opacity() <= 0)
        return false;
    for (QQuickItem* const child : item.childItems()) {
        if ((canBeSeen(*child) && look(*child)) || walk(*child, look))
            return true;
    }
    return false;
}

/// A view keeps the rows that it has no use for now, where they were.
bool isPutAway(const QQuickItem* item)
{
    while (item && !QQuickItemPrivate::get(item)->culled)
        item = item->parentItem();
    return item != nullptr;
}

/// "main" in "grid": what was looked for, in words.
std::string words(const QString& name, const QQuickItem* below)
{
    return '"' + name.toStdString() + '"' + (below ? " in " + below->objectName().toStdString() : std::string());
}

QRectF sceneRect(const QQuickItem& item)
{
    return item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
}

QQuickItem* flickableAround(const QQuickItem& item)
{
    for (QQuickItem* around = item.parentItem(); around; around = around->parentItem()) {
        if (around->inherits("QQuickFlickable"))
            return around;
    }
    return nullptr;
}

} // namespace

const QQuickItem* WindowDriver::start(const QQuickItem* below) const
{
    if (!m_window)
        throw std::runtime_error("the window is gone");
    return below ? below : m_window->contentItem();
}

QQuickItem* WindowDriver::find(const QString& name, const QQuickItem* below) const
{
    QQuickItem* found = nullptr;
    walk(*start(below), [&](QQuickItem& item) {
        if (item.objectName() == name)
            found = &item;
        return found != nullptr;
    });
    return found;
}

QList<QQuickItem*> WindowDriver::findAll(const QString& namePrefix, const QQuickItem* below) const
{
    QList<QQuickItem*> found;
    walk(*start(below), [&](QQuickItem& item) {
        if (item.objectName().startsWith(namePrefix))
            found.append(&item);
        return false;
    });
    return found;
}

QList<QQuickItem*> WindowDriver::findInOrder(const QString& namePrefix, const QQuickItem* below) const
{
    QList<QQuickItem*> found = findAll(namePrefix, below);
    found.removeIf(isPutAway);
    std::ranges::sort(found, {}, [](const QQuickItem* item) {
        const QPoint place = item->mapToScene({}).toPoint();
        return std::pair(place.y(), place.x());
    });
    return found;
}

QQuickItem* WindowDriver::await(const QString& name, const QQuickItem* below) const
{
    waitUntil([&] { return find(name, below) != nullptr; }, words(name, below) + " is there");
    return find(name, below);
}

void WindowDriver::awaitGone(const QString& name, const QQuickItem* below) const
{
    waitUntil([&] { return find(name, below) == nullptr; }, words(name, below) + " is gone");
}

QStringList WindowDriver::texts(const QQuickItem* below) const
{
    QStringList all;
    walk(*start(below), [&all](QQuickItem& item) {
        const QString text = item.property("text").toString();
        if (item.inherits("QQuickText") && !text.isEmpty())
            all.append(text);
        return false;
    });
    return all;
}

bool WindowDriver::shows(const QString& text, const QQuickItem* below) const
{
    return texts(below).contains(text);
}

void WindowDriver::awaitText(const QString& text, const QQuickItem* below) const
{
    waitUntil([&] { return shows(text, below); }, words(text, below) + " can be read");
}

void WindowDriver::awaitNoText(const QString& text, const QQuickItem* below) const
{
    waitUntil([&] { return !shows(text, below); }, words(text, below) + " can no longer be read");
}

void WindowDriver::awaitPage(const QString& title) const
{
    const QString wanted = title + QStringLiteral(" – LOOMSTREET");
    waitUntil([&] { return m_window->title() == wanted && m_window->property("settled").toBool(); },
              "the page \"" + title.toStdString() + "\" is there");
}

void WindowDriver::click(QQuickItem* item, Qt::KeyboardModifiers modifiers, Qt::MouseButton button) const
{
    awaitFrame();
    reveal(item);
    const QPoint middle = sceneRect(*item).center().toPoint();
    if (!m_window->contentItem()->contains(middle))
        throw std::runtime_error("cannot bring " + item->objectName().toStdString() + " into view");
    QTest::mouseClick(m_window, button, modifiers, middle);
}

void WindowDriver::click(const QString& name, Qt::KeyboardModifiers modifiers) const
{
    // A view that recycles its items may be about to give this one to something else.
    QQuickItem* item = await(name);
    QRectF place;
    for (int frame = 0; frame < 20 && std::exchange(place, sceneRect(*item)) != sceneRect(*item); ++frame) {
        awaitFrame();
        item = await(name);
    }
    click(item, modifiers);
}

void WindowDriver::clickAt(QPointF place) const
{
    QTest::mouseClick(m_window, Qt::LeftButton, Qt::NoModifier, place.toPoint());
}

void WindowDriver::hover(QQuickItem* item) const
{
    reveal(item);
    QTest::mouseMove(m_window, sceneRect(*item).center().toPoint());
}

void WindowDriver::press(const QString& keys) const
{
    const QKeySequence sequence(keys);
    for (int i = 0; i < sequence.count(); ++i)
        QTest::keyClick(m_window, sequence[static_cast<uint>(i)].key(),
                        sequence[static_cast<uint>(i)].keyboardModifiers());
}

void WindowDriver::type(const QString& text) const
{
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, m_window.data(), Qt::Key_unknown, letter, Qt::NoModifier);
}

void WindowDriver::scroll(QQuickItem* item, int points) const
{
    const QPointF middle = sceneRect(*item).intersected(QRectF({}, m_window->size())).center();
    // As a touch pad does, which moves the page at once and by exactly so much. The first steps
    // only tell of the direction, and steps at the same moment would not count.
    static ulong moment = static_cast<ulong>(QDateTime::currentMSecsSinceEpoch());
    const auto turn = [&](Qt::ScrollPhase phase, int by) {
        moment += 20;
        QWindowSystemInterface::handleWheelEvent(m_window, moment, middle, m_window->mapToGlobal(middle), QPoint(0, by),
                                                 QPoint(0, by), Qt::NoModifier, phase,
                                                 Qt::MouseEventSynthesizedBySystem);
    };
    turn(Qt::ScrollBegin, 0);
    turn(Qt::ScrollUpdate, points < 0 ? 1 : -1);
    turn(Qt::ScrollUpdate, points < 0 ? 1 : -1);
    turn(Qt::ScrollUpdate, -points);
    turn(Qt::ScrollEnd, 0);
    QWindowSystemInterface::flushWindowSystemEvents();
}

void WindowDriver::awaitFrame() const
{
    // Frames come from a thread of their own: word of one more may arrive when this has returned.
    const auto isDrawn = std::make_shared<bool>(false);
    const QMetaObject::Connection drawn = QObject::connect(
        m_window, &QQuickWindow::frameSwapped, m_window, [isDrawn] { *isDrawn = true; }, Qt::QueuedConnection);
    m_window->update();
    waitUntil([&isDrawn] { return *isDrawn; }, "a frame is drawn");
    QObject::disconnect(drawn);
}

void WindowDriver::reveal(QQuickItem* item) const
{
    for (QQuickItem* flickable = flickableAround(*item); flickable; flickable = flickableAround(*flickable)) {
        const QRectF port = sceneRect(*flickable);
        const QRectF place = sceneRect(*item);
        if (place.top() < port.top() || place.height() > port.height())
            scroll(flickable, qFloor(place.top() - port.top() - 8));
        else if (place.bottom() > port.bottom())
            scroll(flickable, qCeil(place.bottom() - port.bottom() + 8));
    }
}

QString WindowDriver::focusName() const
{
    const QQuickItem* item = m_window->activeFocusItem();
    while (item && item->objectName().isEmpty())
        item = item->parentItem();
    return item ? item->objectName() : QString();
}

void WindowDriver::awaitFocus(const QString& name) const
{
    waitUntil([&] { return focusName() == name; }, words(name, nullptr) + " has the focus");
}

void WindowDriver::tabTo(const QString& name, const QString& key) const
{
    constexpr int manyStops = 80;
    QStringList stops;
    while (focusName() != name) {
        press(key);
        drainEvents(); // what the last action brings may still be on its way
        stops.append(focusName());
        if (stops.size() > manyStops)
            throw std::runtime_error("no " + key.toStdString() + " leads to " + name.toStdString() + ", only to " +
                                     stops.join(QStringLiteral(", ")).toStdString());
    }
}

void WindowDriver::save(const QString& file) const
{
    if (m_window)
        m_window->grabWindow().save(file);
}

QString accessibleName(QObject* item)
{
    const QAccessibleInterface* const seen = QAccessible::queryAccessibleInterface(item);
    return seen ? seen->text(QAccessible::Name) : QString();
}

} // namespace loom
