#pragma once

#include "TestEngine.h"
#include "app/AppFixture.h"
#include "app/SystemAppearance.h"
#include "ui/shell/WindowManager.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

namespace loom
{

class PlainAppearance final : public SystemAppearance
{
public:
    PlainAppearance() { connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, &SystemAppearance::changed); }

    [[nodiscard]] bool isDark() const override { return false; }
    [[nodiscard]] bool reducesMotion() const override { return true; }
    [[nodiscard]] bool isRightToLeft() const override { return QGuiApplication::layoutDirection() == Qt::RightToLeft; }
    [[nodiscard]] double textScale() const override { return 1; }
};

/// The real windows, in front of a store that has nothing.
class WindowFixture : public AppFixture
{
protected:
    WindowFixture()
    {
        prepareTestEngine(engine);
        start();
        windows.emplace(engine, *model, appearance);
        model->setWindowHost(&*windows);
    }
    ~WindowFixture() override
    {
        while (!model->windows().empty())
            model->closeWindow(model->windows().front().get());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        drainEvents();
    }

    QQuickWindow& open(const WindowSeed& seed)
    {
        QQuickWindow* const window = windows->windowOf(model->openWindow(seed));
        if (!window || !QTest::qWaitForWindowActive(window))
            throw std::runtime_error("no window came to the front");
        return *window;
    }
    static QQuickItem* find(const QString& name, QQuickItem* below)
    {
        if (below->objectName() == name)
            return below;
        for (QQuickItem* const child : below->childItems()) {
            if (QQuickItem* const found = find(name, child))
                return found;
        }
        return nullptr;
    }

    PlainAppearance appearance;
    QQmlEngine engine;
    std::optional<WindowManager> windows;
};

} // namespace loom
