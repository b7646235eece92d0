#include "stylist/MiraRowText.h"

#include "stylist/MiraRules.h"

#include <QTextBoundaryFinder>

namespace loom
{

namespace
{

constexpr qsizetype mostSentences = 200;

} // namespace

QStringList sentencesOf(const QString& text)
{
    QStringList sentences;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Sentence, text);
    qsizetype start = 0;
    while (sentences.size() + 1 < mostSentences && finder.toNextBoundary() > 0) {
        const QString sentence = text.mid(start, finder.position() - start).simplified();
        start = finder.position();
        if (!sentence.isEmpty())
            sentences.append(sentence);
    }
    if (const QString rest = text.mid(start).simplified(); !rest.isEmpty())
        sentences.append(rest);
    return sentences;
}

MiraRowText miraRowText(const MiraMessage& message)
{
    const bool isMine = message.direction == MiraDirection::Outbound;
    MiraRowText row{
        .text = MiraRules::shownText(message), .handles = MiraRules::productHandles(message), .sentences = {}};
    row.sentences = sentencesOf(row.text);
    row.asksMeasurements = !isMine && MiraRules::asksForMeasurements(row.text);
    return row;
}

} // namespace loom
