#include "commerce/SuggestionSlots.h"

#include <algorithm>
#include <ranges>

namespace loom
{

SuggestionSlots::SuggestionSlots(int places, QObject* parent)
    : QAbstractListModel(parent)
    , m_places(static_cast<std::size_t>(places))
{
}

const Suggestion* SuggestionSlots::at(int place) const
{
    const auto index = static_cast<std::size_t>(place);
    return place >= 0 && index < m_places.size() && m_places[index] ? &*m_places[index] : nullptr;
}

void SuggestionSlots::closeUp()
{
    std::vector<std::optional<Suggestion>> places;
    std::ranges::copy_if(m_places, std::back_inserter(places), [](const auto& place) { return place.has_value(); });
    places.resize(m_places.size());
    show(std::move(places));
}

void SuggestionSlots::place(const std::vector<Suggestion>& wanted)
{
    std::vector<std::optional<Suggestion>> places(wanted.begin(), wanted.end());
    places.resize(m_places.size());
    show(std::move(places));
}

void SuggestionSlots::merge(const std::vector<Suggestion>& wanted)
{
    std::vector<std::optional<Suggestion>> places(m_places.size());
    std::vector<const Suggestion*> newcomers;
    for (const Suggestion& suggestion : wanted | std::views::take(m_places.size())) {
        const auto known =
            std::ranges::find_if(m_places, [&](const auto& place) { return place && place->key == suggestion.key; });
        if (known != m_places.end())
            places[static_cast<std::size_t>(std::distance(m_places.begin(), known))] = suggestion;
        else
            newcomers.push_back(&suggestion);
    }
    auto place = places.begin();
    for (const Suggestion* const newcomer : newcomers) {
        place = std::find(place, places.end(), std::nullopt);
        *place = *newcomer;
    }
    show(std::move(places));
}

void SuggestionSlots::setCurrent(int place)
{
    const int former = std::exchange(m_current, place);
    if (former == place)
        return;
    for (const int row : {former, place}) {
        if (row >= 0)
            Q_EMIT dataChanged(index(row), index(row), {IsCurrentRole});
    }
}

void SuggestionSlots::show(std::vector<std::optional<Suggestion>> places)
{
    const std::vector<std::optional<Suggestion>> former = std::exchange(m_places, std::move(places));
    for (std::size_t i = 0; i < m_places.size(); ++i) {
        if (m_places[i] != former[i])
            Q_EMIT dataChanged(index(static_cast<int>(i)), index(static_cast<int>(i)));
    }
    const auto filled =
        static_cast<int>(std::ranges::count_if(m_places, [](const auto& place) { return place.has_value(); }));
    if (std::exchange(m_filled, filled) != filled)
        Q_EMIT filledChanged();
}

int SuggestionSlots::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_places.size());
}

QVariant SuggestionSlots::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (role == IsCurrentRole)
        return index.row() == m_current;
    const Suggestion* const found = at(index.row());
    const Suggestion suggestion = found ? *found : Suggestion();
    switch (role) {
    case KeyRole:
        return suggestion.key;
    case TextRole:
        return suggestion.text;
    case VendorRole:
        return suggestion.vendor;
    case PictureRole:
        return suggestion.picture;
    case EmphasisStartRole:
        return suggestion.emphasis.start;
    case EmphasisLengthRole:
        return suggestion.emphasis.length;
    case IsFilledRole:
        return found != nullptr;
    default:
        return {};
    }
}

QHash<int, QByteArray> SuggestionSlots::roleNames() const
{
    return {{KeyRole, "key"},
            {TextRole, "text"},
            {VendorRole, "vendor"},
            {PictureRole, "picture"},
            {EmphasisStartRole, "emphasisStart"},
            {EmphasisLengthRole, "emphasisLength"},
            {IsFilledRole, "isFilled"},
            {IsCurrentRole, "isCurrent"}};
}

} // namespace loom
