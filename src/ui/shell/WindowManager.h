#pragma once

#include "app/WindowHost.h"

#include "ui/shell/Retranslation.h"

#include <QHash>
#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

class QQmlComponent;
class QQmlEngine;
class QQuickWindow;
class QWindow;

namespace loom
{

class AppModel;
class SystemAppearance;

/// Makes the windows of sessions out of the shell's QML. Main thread; owns the windows.
class WindowManager final : public QObject, public WindowHost
{
    Q_OBJECT

public:
    WindowManager(QQmlEngine& engine, AppModel& model, SystemAppearance& appearance, QObject* parent = nullptr);
    ~WindowManager() override;

    void show(WindowSession& session) override;
    void raise(WindowSession& session) override;
    void showSettings() override;
    void showCheckout(CheckoutModel& checkout) override;
    void showMira() override;
    void showCall() override;
    [[nodiscard]] bool hasVisibleWindow() const override;
    void applyWindowStyle() override;

    /// What the windows say may be said otherwise now. It is, over the next turns of the event loop.
    void retranslate();
    /// The windows are about to be read in the other direction: their parts follow, over those turns.
    void holdDirection();
    [[nodiscard]] bool isRetranslating() const { return m_retranslation.isRunning(); }

    /// How windows ask to come to the front, where the desktop wants to know more than that they do.
    void setActivate(std::function<void(QWindow& window)> activate) { m_activate = std::move(activate); }

    /// The window of a session; null when it has none.
    [[nodiscard]] QQuickWindow* windowOf(const WindowSession& session) const;

    /// Begins to read the types of which a main window is made, in the background. What it returns is to be kept until
    /// the first window is there, and no longer than the engine.
    [[nodiscard]] static std::unique_ptr<QQmlComponent> preload(QQmlEngine& engine);

    /// Shows what there is to see of a build that belongs to no store.
    [[nodiscard]] static std::unique_ptr<QQuickWindow> showConfigurationMissing(QQmlEngine& engine,
                                                                                SystemAppearance& appearance);

private:
    [[nodiscard]] QQuickWindow* create(const QString& type, QVariantMap properties);
    /// The one that the shopper looks at first.
    [[nodiscard]] QList<QQuickWindow*> allWindows() const;
    void bringForward(QWindow* window) const;

    QQmlEngine& m_engine;
    AppModel& m_model;
    SystemAppearance& m_appearance;
    std::function<void(QWindow& window)> m_activate;
    QHash<const WindowSession*, QPointer<QQuickWindow>> m_windows;
    QHash<const CheckoutModel*, QPointer<QQuickWindow>> m_checkouts;
    QPointer<QQuickWindow> m_settings;
    QPointer<QQuickWindow> m_mira;
    QPointer<QQuickWindow> m_call;
    Retranslation m_retranslation;
};

} // namespace loom
