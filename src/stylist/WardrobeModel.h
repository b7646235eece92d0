#pragma once

#include "stylist/WardrobeItem.h"

#include <QAbstractListModel>
#include <QSet>

#include <vector>

namespace loom
{

class CartStore;
class WishlistStore;

/// The pieces of the bag and of the wishlist, to pick from what the stylist is to style with. A piece that is in both
/// counts as one of the bag. Reads the lists from the first time somebody looks. Main thread.
class WardrobeModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(int pickedCount READ pickedCount NOTIFY picksChanged)
    Q_PROPERTY(int maximum READ maximum CONSTANT)

public:
    enum Role {
        HandleRole = Qt::UserRole + 1, ///< "handle"
        TitleRole,                     ///< "title"
        ImageRole,                     ///< "image"
        SourceRole,                    ///< "source": "cart" or "wishlist"
        SlotRole,                      ///< "slot": as WardrobeItem's slots are called
        SlotLabelRole,                 ///< "slotLabel": in the language of the window
        IsPickedRole,                  ///< "isPicked"
    };
    Q_ENUM(Role)

    WardrobeModel(CartStore& cart, WishlistStore& wishlist, QObject* parent = nullptr);

    [[nodiscard]] int count() const { return static_cast<int>(m_pieces.size()); }
    [[nodiscard]] int pickedCount() const { return static_cast<int>(m_picked.size()); }
    /// So many can be picked.
    [[nodiscard]] static int maximum();
    /// What is picked, by slot, then in the order of the rows.
    [[nodiscard]] std::vector<WardrobeItem> picked() const;

    /// Somebody looks.
    Q_INVOKABLE void show();
    Q_INVOKABLE void toggle(const QString& handle);
    /// Exactly these, as far as they are there.
    Q_INVOKABLE void pick(const QStringList& handles);
    Q_INVOKABLE void clearPicks() { pick({}); }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();
    void picksChanged();

private:
    /// As the lists have it; what else there is to know of it is worked out when somebody asks.
    struct Piece {
        QString handle;
        QString title;
        QStringList tags;
        QString image;
        WardrobeSource source = WardrobeSource::Cart;

        [[nodiscard]] WardrobeItem item() const;

        bool operator==(const Piece&) const = default;
    };

    [[nodiscard]] std::vector<Piece> read() const;
    void update();
    void setPicked(QSet<QString> picked);

    CartStore& m_cart;
    WishlistStore& m_wishlist;
    bool m_isShown = false;
    std::vector<Piece> m_pieces;
    QSet<QString> m_picked;
};

} // namespace loom
