#pragma once

#include "TestEngine.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QVariant>
#include <gtest/gtest.h>

#include <memory>

namespace loom
{

/// Theme, fresh for each test, by the names of its properties.
class ThemeFixture : public testing::Test
{
protected:
    void SetUp() override
    {
        m_engine = std::make_unique<QQmlEngine>();
        prepareTestEngine(*m_engine);
        QQmlComponent component(m_engine.get());
        component.setData("import QtQml\nimport Loomstreet.Theme\nQtObject { property QtObject theme: Theme }", {});
        m_holder.reset(component.create());
        ASSERT_NE(m_holder, nullptr) << component.errorString().toStdString();
        m_theme = m_holder->property("theme").value<QObject*>();
    }

    [[nodiscard]] QVariant value(const QString& name) const
    {
        const QVariant found = m_theme->property(name.toLatin1().constData());
        EXPECT_TRUE(found.isValid()) << "Theme lacks " << name.toStdString();
        return found;
    }

    void set(const char* name, const QVariant& value) const { m_theme->setProperty(name, value); }

    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QObject> m_holder;
    QObject* m_theme = nullptr;
};

} // namespace loom
