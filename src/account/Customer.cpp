#include "account/Customer.h"

#include <QCryptographicHash>

namespace loom
{

QString accountIDOf(const Customer& customer)
{
    if (!customer.numericId.isEmpty())
        return customer.numericId;
    const QByteArray address = customer.email.trimmed().toLower().toUtf8();
    return QString::fromLatin1(QCryptographicHash::hash(address, QCryptographicHash::Sha256).toHex().left(32));
}

} // namespace loom
