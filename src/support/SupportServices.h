#pragma once

#include <QString>

#include <functional>

class QUrl;

namespace loom
{

class Clock;
class DataFolder;
class DateFormat;
class Random;
class SupportAPI;

/// What the chat with customer service is made of; all of it outlives the chat.
struct SupportServices {
    SupportAPI& api;
    const DateFormat& dates;
    DataFolder& folder;
    Clock& clock;
    Random& random;
    std::function<QString()> language;               ///< the code of the shopper's language
    std::function<void(const QUrl&)> openExternally; ///< in the shopper's browser
};

} // namespace loom
