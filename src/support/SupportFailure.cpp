#include "support/SupportFailure.h"

#include <QCoreApplication>

namespace loom
{

namespace
{

QString sentence(SupportFileProblem problem)
{
    switch (problem) {
    case SupportFileProblem::Missing:
        return QCoreApplication::translate("Loomstreet", "This file is not there any more.");
    case SupportFileProblem::Unreadable:
        return QCoreApplication::translate("Loomstreet", "This file couldn't be read.");
    case SupportFileProblem::Empty:
        return QCoreApplication::translate("Loomstreet", "This file is empty.");
    case SupportFileProblem::TooLarge:
        return QCoreApplication::translate("Loomstreet", "This file is larger than 10 MB. Choose a smaller one.");
    case SupportFileProblem::WrongType:
        return QCoreApplication::translate("Loomstreet", "Only pictures and PDF files can be sent.");
    }
    return {};
}

/// The service refuses files for the same reasons as this machine.
QString sentence(const APIError& error)
{
    const auto* const http = error.as<APIError::Http>();
    if (http && (http->code == QLatin1String("TOO_LARGE") || http->status == 413))
        return sentence(SupportFileProblem::TooLarge);
    if (http && (http->code == QLatin1String("UNSUPPORTED_TYPE") || http->status == 415))
        return sentence(SupportFileProblem::WrongType);
    return errorDescription(error);
}

} // namespace

QString errorDescription(const SupportFailure& failure)
{
    return std::visit([](const auto& reason) { return sentence(reason); }, failure);
}

} // namespace loom
