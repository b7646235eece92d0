#include "catalog/Department.h"

#include <QCoreApplication>

#include <algorithm>

namespace loom
{

namespace
{

QStringList handles(std::initializer_list<const char*> list)
{
    QStringList result;
    for (const char* const handle : list)
        result.append(QString::fromLatin1(handle));
    return result;
}

} // namespace

const std::vector<Department>& departments()
{
    static const std::vector<Department> all{
        {QStringLiteral("newIn"), QT_TRANSLATE_NOOP("Loomstreet", "New In"), QStringLiteral("new-in"), {}},
        {QStringLiteral("women"), QT_TRANSLATE_NOOP("Loomstreet", "Women"), std::nullopt,
         handles({"women", "dresses", "tops", "knitwear", "skirts", "trousers", "coats", "blazers", "shoes", "boots",
                  "bags", "evening"})},
        {QStringLiteral("men"), QT_TRANSLATE_NOOP("Loomstreet", "Men"), std::nullopt,
         handles({"men", "knitwear", "trousers", "coats", "blazers", "boots", "accessories"})},
        {QStringLiteral("luxury"), QT_TRANSLATE_NOOP("Loomstreet", "Luxury"), std::nullopt,
         handles({"luxury", "evening", "bags", "coats"})},
        {QStringLiteral("bags"), QT_TRANSLATE_NOOP("Loomstreet", "Bags"), QStringLiteral("bags"), {}},
        {QStringLiteral("accessories"),
         QT_TRANSLATE_NOOP("Loomstreet", "Accessories"),
         QStringLiteral("accessories"),
         {}},
    };
    return all;
}

const Department* findDepartment(const QString& id)
{
    const auto found = std::ranges::find(departments(), id, &Department::id);
    return found != departments().end() ? &*found : nullptr;
}

} // namespace loom
