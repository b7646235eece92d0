#include "TestEngine.h"

#include <QQmlEngine>
#include <QtQuickTest/quicktest.h>

namespace
{

class Setup : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void qmlEngineAvailable(QQmlEngine* engine) { loom::prepareTestEngine(*engine); }
};

} // namespace

QUICK_TEST_MAIN_WITH_SETUP(components, Setup)

#include "QmlTestMain.moc"
