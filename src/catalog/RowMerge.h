#pragma once

#include <QSet>
#include <QStringList>

namespace loom
{

/// Turns the rows `shown` of a list model into `wanted` with as few changes as it takes, so that what stays keeps its
/// delegate and its focus. The model does what it is told: remove(row), move(from, to), insert(row, place in wanted).
template <typename Remove, typename Move, typename Insert>
void mergeRows(QStringList shown, const QStringList& wanted, Remove remove, Move move, Insert insert)
{
    const QSet<QString> kept(wanted.begin(), wanted.end());
    for (qsizetype row = shown.size() - 1; row >= 0; --row) {
        if (kept.contains(shown.at(row)))
            continue;
        remove(static_cast<int>(row));
        shown.removeAt(row);
    }
    for (qsizetype row = 0; row < wanted.size(); ++row) {
        if (row < shown.size() && shown.at(row) == wanted.at(row))
            continue;
        const qsizetype from = shown.indexOf(wanted.at(row), row);
        if (from >= 0) {
            move(static_cast<int>(from), static_cast<int>(row));
            shown.move(from, row);
        } else {
            insert(static_cast<int>(row), static_cast<std::size_t>(row));
            shown.insert(row, wanted.at(row));
        }
    }
    for (qsizetype row = shown.size() - 1; row >= wanted.size(); --row)
        remove(static_cast<int>(row));
}

} // namespace loom
