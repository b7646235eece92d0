#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QObject>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QtConcurrent>

#include <qcoro/qcorofuture.h>
#include <qcoro/qcoronetworkreply.h>
#include <qcoro/qcorotask.h>

#include <simdjson.h>

#include <chrono>
#include <expected>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <variant>
#include <vector>
