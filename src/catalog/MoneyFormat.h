#pragma once

#include "net/AppLanguage.h"

#include <memory>

namespace loom
{

struct Money;

/// Writes prices as the shopper's language does (CLDR): symbol, its place, digits of the currency. Main thread.
class MoneyFormat
{
public:
    explicit MoneyFormat(AppLanguage language);
    MoneyFormat(const MoneyFormat&) = delete;
    MoneyFormat& operator=(const MoneyFormat&) = delete;
    ~MoneyFormat();

    void setLanguage(AppLanguage language);

    /// "$248.00". A currency that is none is written behind the amount as it stands.
    [[nodiscard]] QString text(const Money& money) const;
    /// "$248", and "$248.50" where it is not whole: for bounds, not for prices.
    [[nodiscard]] QString roundText(const Money& money) const;

private:
    struct Formatter;
    std::unique_ptr<Formatter> m_formatter;
};

} // namespace loom
