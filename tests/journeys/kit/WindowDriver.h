#pragma once

#include <QKeySequence>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStringList>

#include <functional>

namespace loom
{

/// Works a window as a shopper does, with pointer and keys, and looks at what can be seen in it. Every wait is for a
/// condition, and fails the test when it is never met.
class WindowDriver
{
public:
    explicit WindowDriver(QQuickWindow* window = nullptr)
        : m_window(window)
    {
    }

    [[nodiscard]] QQuickWindow* window() const { return m_window; }

    /// The first item of that object name that can be seen, in `below` or in the whole window; null when there is none.
    [[nodiscard]] QQuickItem* find(const QString& name, const QQuickItem* below = nullptr) const;
    /// All items that can be seen whose object names begin so.
    [[nodiscard]] QList<QQuickItem*> findAll(const QString& namePrefix, const QQuickItem* below = nullptr) const;
    /// Those of them that are on the screen, as one reads them: from top to bottom, and in a row from left to right.
    [[nodiscard]] QList<QQuickItem*> findInOrder(const QString& namePrefix, const QQuickItem* below = nullptr) const;
    /// The first of that object name, waited for.
    QQuickItem* await(const QString& name, const QQuickItem* below = nullptr) const;
    void awaitGone(const QString& name, const QQuickItem* below = nullptr) const;

    /// Every text that can be seen, from top to bottom of the tree.
    [[nodiscard]] QStringList texts(const QQuickItem* below = nullptr) const;
    [[nodiscard]] bool shows(const QString& text, const QQuickItem* below = nullptr) const;
    void awaitText(const QString& text, const QQuickItem* below = nullptr) const;
    void awaitNoText(const QString& text, const QQuickItem* below = nullptr) const;
    /// A page of this title is on top and has what it needs to be looked at.
    void awaitPage(const QString& title) const;

    /// Brings an item into view, by the wheel, and clicks its middle.
    void click(QQuickItem* item, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
               Qt::MouseButton button = Qt::LeftButton) const;
    /// The same for an item that is waited for.
    void click(const QString& name, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    /// Clicks a place of the window.
    void clickAt(QPointF place) const;
    void hover(QQuickItem* item) const;
    /// Presses and releases keys, such as "Ctrl+Tab".
    void press(const QString& keys) const;
    void type(const QString& text) const;
    /// Turns the wheel over an item by so many points; positive goes further down.
    void scroll(QQuickItem* item, int points) const;
    /// Scrolls whatever holds the item until all of it, or its beginning, is in view.
    void reveal(QQuickItem* item) const;

    /// The object name of the item that has the keyboard, or of the closest one around it that has a name.
    [[nodiscard]] QString focusName() const;
    void awaitFocus(const QString& name) const;
    /// Presses Tab, or Shift+Tab, until an item of that object name has the keyboard.
    void tabTo(const QString& name, const QString& key = QStringLiteral("Tab")) const;

    /// Waits for a frame, before which everything is put in its place.
    void awaitFrame() const;
    /// Saves what the window shows now.
    void save(const QString& file) const;

private:
    [[nodiscard]] const QQuickItem* start(const QQuickItem* below) const;

    QPointer<QQuickWindow> m_window;
};

/// What an item tells to assistive tools.
[[nodiscard]] QString accessibleName(QObject* item);

} // namespace loom
