#include "stylist/voice/MiraVoiceToast.h"

#include "catalog/DisplayText.h"
#include "stylist/voice/MiraVoiceFailure.h"

#include <QCoreApplication>

namespace loom
{

QString MiraVoiceToast::text() const
{
    constexpr qsizetype longestSubject = 120;
    const QString name = displayLine(subject, longestSubject);
    switch (kind) {
    case Kind::Added:
        return name.isEmpty() ? QCoreApplication::translate("Loomstreet", "Added to your cart")
                              : QCoreApplication::translate("Loomstreet", "Added %1 to your cart").arg(name);
    case Kind::NotAdded:
        return QCoreApplication::translate("Loomstreet", "Couldn't add it. Try from the product page.");
    case Kind::Opening:
        return name.isEmpty() ? QCoreApplication::translate("Loomstreet", "Taking you there…")
                              : QCoreApplication::translate("Loomstreet", "Opening %1").arg(name);
    case Kind::Hiccup:
        return miraVoiceFailureText(MiraVoiceFailure::Hiccup);
    }
    return {};
}

} // namespace loom
