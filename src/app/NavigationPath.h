#pragma once

#include "app/PageEntry.h"

#include <QAbstractListModel>

namespace loom
{

/// One page that a tab has been on.
struct VisitedPage {
    int id = 0; ///< unique in its tab
    int depth = 0;
    PageEntry entry;

    bool operator==(const VisitedPage&) const = default;
};

/// The pages that the page container keeps alive, in the order of the tab's history; one of them is on top. The router
/// says which; going back and forth only moves the top. Main thread; owned by the router.
class NavigationPath : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int top READ top NOTIFY topChanged)

public:
    enum Role { PageIDRole = Qt::UserRole + 1, DepthRole, EntryRole };

    using QAbstractListModel::QAbstractListModel;

    /// The row of the page on top.
    [[nodiscard]] int top() const { return m_top; }
    [[nodiscard]] const std::vector<VisitedPage>& pages() const { return m_pages; }

    /// Pages that stay keep their rows, unless they are of another kind now; none changes its place among those that
    /// stay.
    void show(std::vector<VisitedPage> pages, int top);

    /// What is in the row is called so in the language of the window now.
    void rename(int row, const QString& title);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void topChanged();

private:
    std::vector<VisitedPage> m_pages;
    int m_top = 0;
};

} // namespace loom
