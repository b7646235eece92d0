#pragma once

#include "app/WindowHost.h"

#include <QHash>
#include <QObject>
#include <QPointer>

#include <memory>

class QQmlComponent;
class QQmlEngine;
class QQuickWindow;

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
    [[nodiscard]] bool hasVisibleWindow() const override;
    void applyWindowStyle() override;

    /// The window of a session; null when it has none.
    [[nodiscard]] QQuickWindow* windowOf(const WindowSession& session) const;

    /// Shows what there is to see of a build that belongs to no store.
    [[nodiscard]] static std::unique_ptr<QQuickWindow> showConfigurationMissing(QQmlEngine& engine,
                                                                                SystemAppearance& appearance);

private:
    [[nodiscard]] QQuickWindow* create(const QString& type, QVariantMap properties);

    QQmlEngine& m_engine;
    AppModel& m_model;
    SystemAppearance& m_appearance;
    QHash<const WindowSession*, QPointer<QQuickWindow>> m_windows;
    QPointer<QQuickWindow> m_settings;
};

} // namespace loom
