#include "QmlTestSetup.h"

#include <QQmlEngine>
#include <QtQuickTest/quicktest.h>

QUICK_TEST_MAIN_WITH_SETUP(components, loom::QmlTestSetup)
