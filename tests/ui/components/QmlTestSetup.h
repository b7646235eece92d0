#pragma once

#include "TestEngine.h"

#include <QObject>

class QQmlEngine;

namespace loom
{

/// Prepares the engine of each test file.
class QmlTestSetup : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void qmlEngineAvailable(QQmlEngine* engine) { prepareTestEngine(*engine); }
};

} // namespace loom
