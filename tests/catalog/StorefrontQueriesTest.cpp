#include "catalog/StorefrontQueries.h"

#include <gtest/gtest.h>

namespace loom
{

TEST(StorefrontQueriesTest, AHandleInADocumentIsALiteralWhateverItHolds)
{
    struct Row {
        QString handle;
        QString literal;
    };
    for (const Row& row : {
             Row{QStringLiteral("a\"){x}#"), QStringLiteral(R"("a\"){x}#")")},
             Row{QStringLiteral("a\\"), QStringLiteral(R"("a\\")")},
             Row{QStringLiteral("a\n\t\u0001"), QStringLiteral(R"("a\n\t\u0001")")},
             Row{QString(QChar(u'\0')), QStringLiteral(R"("\u0000")")},
             Row{QString::fromUtf8("👗 łódź %1"), QString::fromUtf8("\"👗 łódź %1\"")},
             Row{{}, QStringLiteral("\"\"")},
             // Half a character cannot be written.
             Row{QStringLiteral("a") + QChar(0xd83d), QStringLiteral("\"\"")},
             Row{QString(QChar(0xdc57)), QStringLiteral("\"\"")},
         }) {
        const QString text = queries::collectionProbe({row.handle});
        EXPECT_TRUE(text.contains(QLatin1String("collection(handle: ") + row.literal + QLatin1String(") {")))
            << text.toStdString();
    }
}

} // namespace loom
