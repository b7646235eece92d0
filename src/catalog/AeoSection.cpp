#include "catalog/AeoSection.h"

#include "catalog/MetafieldReading.h"

namespace loom
{

namespace
{

constexpr std::size_t maximumSections = 50;
constexpr std::size_t maximumParagraphs = 100;
constexpr std::size_t maximumFaqs = 100;

AeoFaq decodeFaq(const JsonReader& json)
{
    AeoFaq faq{.question = readLine(json, "question"), .answer = readText(json, "answer")};
    if (faq.question.isEmpty() || faq.answer.isEmpty())
        json.fail(QStringLiteral("expected a question and an answer"));
    return faq;
}

AeoSection decodeSection(const JsonReader& json)
{
    AeoSection section;
    section.title = readLine(json, "title");
    section.paragraphs = readTexts(json, "paragraphs", maximumParagraphs);
    const auto faqs = JsonReader::decodeEach(readElements(json, "faqs", maximumFaqs), decodeFaq);
    section.faqs = {faqs.cbegin(), faqs.cend()};
    if (section.paragraphs.isEmpty() && section.faqs.isEmpty())
        json.fail(QStringLiteral("expected paragraphs or questions"));
    return section;
}

} // namespace

QList<AeoSection> decodeAeoSections(const JsonReader& json)
{
    const auto sections = JsonReader::decodeEach(
        firstOf(json.isList() ? json.elements() : json.optionalList("sections"), maximumSections), decodeSection);
    return {sections.cbegin(), sections.cend()};
}

} // namespace loom
