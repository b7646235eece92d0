#pragma once

#include <QGuiApplication>
#include <QHash>
#include <QObject>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickImageProvider>
#include <QQuickItem>
#include <QQuickWindow>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QtQml/qqmlprivate.h>
#include <QtQml/qqmlregistration.h>
