#include "catalog/ServiceWording.h"

#include <QCoreApplication>

namespace loom
{

ServiceWording serviceWording(ServiceClass serviceClass)
{
    switch (serviceClass) {
    case ServiceClass::FinalSale:
        return {.returns = QCoreApplication::translate("Loomstreet", "Final sale"),
                .note = QCoreApplication::translate("Loomstreet", "This piece cannot be returned"),
                .service = QCoreApplication::translate("Loomstreet", "Check size and colour before you order")};
    case ServiceClass::CustomMade:
        return {.returns = QCoreApplication::translate("Loomstreet", "Made for you"),
                .note = QCoreApplication::translate("Loomstreet", "Goes back only if it arrives faulty"),
                .service = QCoreApplication::translate("Loomstreet", "Made to order, so allow more time")};
    case ServiceClass::Luxury:
        return {.returns = QCoreApplication::translate("Loomstreet", "Returns"),
                .note = QCoreApplication::translate("Loomstreet", "Within 30 days, unworn, with all it came in"),
                .service = QCoreApplication::translate("Loomstreet", "Keep box, dust bag and papers")};
    case ServiceClass::Shoes:
        return {.returns = QCoreApplication::translate("Loomstreet", "Returns"),
                .note = QCoreApplication::translate("Loomstreet", "Within 30 days, soles unmarked, in their box"),
                .service = QCoreApplication::translate("Loomstreet", "Try them on indoors first")};
    case ServiceClass::Standard:
        break;
    }
    return {.returns = QCoreApplication::translate("Loomstreet", "Returns"),
            .note = QCoreApplication::translate("Loomstreet", "Within 30 days, unworn, tags on"),
            .service = {}};
}

} // namespace loom
