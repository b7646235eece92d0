#include "catalog/CountryNames.h"

#include <unicode/uloc.h>

#include <array>

namespace loom
{

namespace
{

template <typename Ask>
QString answered(const Ask& ask)
{
    std::array<UChar, 128> buffer{};
    UErrorCode status = U_ZERO_ERROR;
    const int length = ask(buffer.data(), static_cast<int32_t>(buffer.size()), &status);
    return U_SUCCESS(status) ? QString::fromUtf16(buffer.data(), length) : QString();
}

} // namespace

QString countryNameIn(AppLanguage language, const QString& isoCode)
{
    const QByteArray named = "und_" + isoCode.toLatin1();
    const QByteArray locale = appLanguageCode(language).toLatin1();
    const QString name = answered([&](UChar* text, int32_t size, UErrorCode* status) {
        return uloc_getDisplayCountry(named.constData(), locale.constData(), text, size, status);
    });
    return name.isEmpty() ? isoCode : name;
}

QString languageNameIn(AppLanguage language, AppLanguage named)
{
    const QByteArray code = appLanguageCode(named).toLatin1();
    const QByteArray locale = appLanguageCode(language).toLatin1();
    return answered([&](UChar* text, int32_t size, UErrorCode* status) {
        return uloc_getDisplayName(code.constData(), locale.constData(), text, size, status);
    });
}

} // namespace loom
