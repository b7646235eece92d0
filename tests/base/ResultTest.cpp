#include "base/Result.h"

#include <QString>

#include <memory>

using namespace loom;

namespace
{

using Parsed = Result<std::unique_ptr<int>, QString>;

Parsed half(int number)
{
    if (number % 2 != 0)
        return Unexpected(QStringLiteral("odd"));
    return std::make_unique<int>(number / 2);
}

Parsed quarter(int number)
{
    LOOM_TRY(once, half(number));
    LOOM_TRY(twice, half(*once));
    return twice;
}

QCoro::Task<Parsed> quarterLater(int number)
{
    LOOM_CO_TRY(once, half(number));
    co_return half(*once);
}

TEST(Result, AFailureLeavesTheFunctionAtOnceAndAValueGoesOn)
{
    const Parsed whole = quarter(12);
    ASSERT_TRUE(whole);
    EXPECT_EQ(**whole, 3);
    EXPECT_EQ(quarter(6).error(), QStringLiteral("odd"));
    EXPECT_EQ(quarter(7).error(), QStringLiteral("odd"));

    EXPECT_EQ(**run(quarterLater(12)), 3);
    EXPECT_EQ(run(quarterLater(7)).error(), QStringLiteral("odd"));
}

} // namespace
