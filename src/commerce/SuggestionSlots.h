#pragma once

#include "base/FoldedText.h"

#include <QAbstractListModel>

#include <optional>
#include <vector>

namespace loom
{

/// One thing to go to from the search field.
struct Suggestion {
    QString key; ///< what makes it the same suggestion when it comes again
    QString text;
    QString vendor;
    QString picture;
    TextSpan emphasis;

    bool operator==(const Suggestion&) const = default;
};

/// A section of the suggestions: a fixed number of places. What stands in a place stays there while it is suggested;
/// what comes later takes a free one, so that nothing moves under the pointer. Main thread.
class SuggestionSlots final : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int filled READ filled NOTIFY filledChanged)

public:
    enum Role {
        KeyRole = Qt::UserRole + 1,
        TextRole,
        VendorRole,
        PictureRole,
        EmphasisStartRole,
        EmphasisLengthRole,
        IsFilledRole,
        IsCurrentRole,
    };
    Q_ENUM(Role)

    explicit SuggestionSlots(int places, QObject* parent = nullptr);

    /// How many places hold something.
    [[nodiscard]] int filled() const { return m_filled; }
    [[nodiscard]] const Suggestion* at(int place) const;

    /// Closes the gaps. For when the shopper acts: then a row may move.
    void closeUp();
    /// Shows these in their order, as far as there are places. For when the shopper acts as well.
    void place(const std::vector<Suggestion>& wanted);
    /// Shows these, as far as there are places; what is suggested already keeps its own.
    void merge(const std::vector<Suggestion>& wanted);
    /// Marks the row at `place`; less than 0 for none.
    void setCurrent(int place);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void filledChanged();

private:
    void show(std::vector<std::optional<Suggestion>> places);

    std::vector<std::optional<Suggestion>> m_places;
    int m_filled = 0;
    int m_current = -1;
};

} // namespace loom
