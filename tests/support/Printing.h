#pragma once

#include "net/HttpTransport.h"

#include <QByteArray>
#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <QUrl>

#include <gtest/gtest.h>

#include <ostream>

// How GoogleTest writes Qt's values and ours when an expectation fails.

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray& bytes, std::ostream* out)
{
    *out << '"' << bytes.toStdString() << '"';
}

inline void PrintTo(const QStringList& texts, std::ostream* out)
{
    *out << '[';
    for (const QString& text : texts)
        *out << " \"" << text.toStdString() << '"';
    *out << " ]";
}

inline void PrintTo(const QDateTime& date, std::ostream* out)
{
    *out << (date.isValid() ? date.toString(Qt::ISODateWithMs).toStdString() : "no date");
}

inline void PrintTo(const QUrl& url, std::ostream* out)
{
    *out << url.toEncoded().toStdString();
}

inline void PrintTo(const QJsonObject& object, std::ostream* out)
{
    *out << QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}

namespace loom
{

inline void PrintTo(const HttpResponse& response, std::ostream* out)
{
    *out << response.status << ' ' << response.body.toStdString();
}

inline void PrintTo(const APIError& error, std::ostream* out)
{
    *out << debugDescription(error).toStdString();
}

template <typename T, typename E>
void PrintTo(const Result<T, E>& result, std::ostream* out)
{
    if (!result)
        *out << "failure: " << testing::PrintToString(result.error());
    else if constexpr (std::is_void_v<T>)
        *out << "success";
    else
        *out << testing::PrintToString(*result);
}

inline void PrintTo(const Failure& failure, std::ostream* out)
{
    *out << (failure.isCancelled() ? "cancelled" : debugDescription(failure.error()).toStdString());
}

} // namespace loom
