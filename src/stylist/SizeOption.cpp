#include "stylist/SizeOption.h"

#include "catalog/Product.h"
#include "stylist/MiraRules.h"

#include <algorithm>

namespace loom
{

bool isSizeOption(const QString& name)
{
    static const QRegularExpression size = MiraRules::compiled(
        QStringLiteral("size|尺码|尺寸|尺碼|サイズ|사이즈|taille|größe|grösse|talla|taglia|tamanho|maat|размер|storlek|"
                       "størrelse|rozmiar|beden|ขนาด|kích|ukuran|saiz|مقاس|מידה"),
        QRegularExpression::CaseInsensitiveOption);
    // Accents may come as characters of their own.
    return size.match(name.normalized(QString::NormalizationForm_C)).hasMatch();
}

const ProductOption* sizeOption(const Product& product)
{
    const auto found =
        std::ranges::find_if(product.options, [](const ProductOption& option) { return isSizeOption(option.name); });
    return found == product.options.end() ? nullptr : &*found;
}

std::optional<QString> matchingSize(const QStringList& values, const QString& size)
{
    const QString wanted = size.trimmed();
    std::optional<QString> matching;
    for (const QString& value : values) {
        if (value == wanted && !wanted.isEmpty())
            return value;
        if (!matching && !wanted.isEmpty() && value.trimmed().compare(wanted, Qt::CaseInsensitive) == 0)
            matching = value;
    }
    return matching;
}

} // namespace loom
