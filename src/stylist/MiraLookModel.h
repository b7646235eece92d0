#pragma once

#include "stylist/LookPiece.h"

#include "net/ApiResult.h"
#include "net/Work.h"

#include <QAbstractListModel>
#include <QHash>
#include <QSet>
#include <qcoro/qcorotask.h>

#include <memory>

namespace loom
{

class CartStore;
class CheckoutModel;
class CheckoutStarter;
class MarketStore;
class MiraSizeAPI;
class MoneyFormat;
class StorefrontAPI;

/// A look on its way into the cart: its pieces side by side, a size chosen for each, and all of them added in one step.
/// A row is a place in the look and stays, whichever piece fills it and whether or not it is left out. Main thread;
/// belongs to the page, and begins to load when it is made.
class MiraLookModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count CONSTANT)
    Q_PROPERTY(int pieces READ pieces NOTIFY changed)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY changed)
    Q_PROPERTY(bool hasFailed READ hasFailed NOTIFY changed)
    Q_PROPERTY(QString total READ total NOTIFY changed)
    Q_PROPERTY(QString formerTotal READ formerTotal NOTIFY changed)
    Q_PROPERTY(bool canAdd READ canAdd NOTIFY changed)
    Q_PROPERTY(bool isAdding READ isAdding NOTIFY changed)
    Q_PROPERTY(bool isInCart READ isInCart NOTIFY changed)
    Q_PROPERTY(QString sizesText READ sizesText NOTIFY changed)
    Q_PROPERTY(QString soldOutText READ soldOutText NOTIFY changed)
    Q_PROPERTY(QString failure READ failure NOTIFY changed)
    Q_PROPERTY(bool isStartingCheckout READ isStartingCheckout NOTIFY changed)

public:
    /// The most pieces that a look is shown with.
    static constexpr qsizetype maximumPieces = 12;
    /// The most that are offered in the place of one.
    static constexpr qsizetype maximumAlternatives = 8;

    struct Services {
        StorefrontAPI& catalog;
        MiraSizeAPI& sizes;
        CartStore& cart;
        CheckoutStarter& checkout;
        const MarketStore& market;
        const MoneyFormat& money;
    };

    enum Role {
        HandleRole = Qt::UserRole + 1,
        PhaseRole,
        ErrorTextRole, ///< why it could not be loaded
        ItemRole,      ///< the ProductListItem; undefined while nothing of it is known
        TitleRole,
        DesignerRole,
        PriceRole,       ///< of what is chosen
        FormerPriceRole, ///< empty where there is none
        PictureRole,
        ColourRole,      ///< empty where there is no choice of colours
        SizesRole,       ///< OptionChoice each; empty where there is no size to choose
        SizeRole,        ///< the chosen one; empty while none is
        RecommendedRole, ///< as the product writes it; empty where there is no advice
        LacksSizeRole,   ///< the look waits for a size of it
        IsLeftOutRole,
        IsInCartRole,     ///< this very choice was put into the cart from here, and is still there
        IsSwappedRole,    ///< another piece stood here first
        CanSwapRole,      ///< something is known of what could stand here
        AlternativesRole, ///< {"handle", "title", "designer", "price", "picture", "isOriginal"} each
        IsSeekingRole,    ///< alternatives are on their way
        SeekErrorRole,    ///< why there are no alternatives
    };

    enum class Phase {
        Loading = static_cast<int>(LookPiece::Phase::Loading),
        Ready = static_cast<int>(LookPiece::Phase::Ready),
        SoldOut = static_cast<int>(LookPiece::Phase::SoldOut),
        Missing = static_cast<int>(LookPiece::Phase::Missing),
        Failed = static_cast<int>(LookPiece::Phase::Failed),
    };
    Q_ENUM(Phase)

    MiraLookModel(const QStringList& handles, const Services& services, QObject* parent = nullptr);
    ~MiraLookModel() override;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] int count() const { return static_cast<int>(m_places.size()); }
    /// How many of them the total is of: what is left out, sold out or gone does not count.
    [[nodiscard]] int pieces() const { return static_cast<int>(wanted().size()); }
    /// A piece that is not left out is on its way.
    [[nodiscard]] bool isLoading() const;
    /// One that is not left out could not be loaded.
    [[nodiscard]] bool hasFailed() const;
    /// In words, in the market's currency; empty while there is nothing to add up.
    [[nodiscard]] QString total() const;
    /// Empty where nothing is reduced.
    [[nodiscard]] QString formerTotal() const;
    /// Something of it could be put into the cart now.
    [[nodiscard]] bool canAdd() const;
    [[nodiscard]] bool isAdding() const { return m_adding.isRunning(); }
    /// All that counts of it is in the cart.
    [[nodiscard]] bool isInCart() const;
    /// "Choose sizes for …", once that stands in the way.
    [[nodiscard]] QString sizesText() const;
    /// What the cart had none of, of what was added last.
    [[nodiscard]] QString soldOutText() const;
    /// Why it was not added, or why checkout did not begin.
    [[nodiscard]] QString failure() const;
    [[nodiscard]] bool isStartingCheckout() const;

    Q_INVOKABLE void chooseSize(int row, const QString& size);
    Q_INVOKABLE void setLeftOut(int row, bool isLeftOut);
    /// Asks for pieces that could stand there instead, unless they are known or asked for already.
    Q_INVOKABLE void seekAlternatives(int row);
    /// Puts one of the alternatives there.
    Q_INVOKABLE void swap(int row, const QString& handle);
    /// Tries anew what could not be loaded.
    Q_INVOKABLE void retry();
    /// Puts what is not there yet into the cart, all in one step, or asks for the sizes that are missing.
    Q_INVOKABLE void add();
    /// Of the whole cart.
    Q_INVOKABLE void startCheckout();

Q_SIGNALS:
    void changed();
    /// These pieces were put into the cart.
    void added(const QStringList& handles);
    /// The checkout is shown in its window.
    void checkoutShown();

private:
    struct Place {
        LookPiece piece;
        Work loading;
        Work seeking;
    };

    [[nodiscard]] Place* placeAt(int row) const;
    [[nodiscard]] std::vector<Place*> wanted() const;
    [[nodiscard]] bool isInCart(const LookPiece& piece) const;
    /// None where there is nothing to add up.
    [[nodiscard]] std::optional<Money> sum(std::optional<Money> (LookPiece::*price)() const) const;
    [[nodiscard]] QString moneyText(const std::optional<Money>& money) const;
    [[nodiscard]] QStringList otherHandles(const Place& place) const;
    [[nodiscard]] QVariantList alternatives(const Place& place) const;
    [[nodiscard]] QStringList piecesWithoutSize() const;
    void load(Place& place) { static_cast<void>(fetch(&place)); }
    void reload();
    void tell(const Place& place);
    void tellAll();
    void markSoldOut(const QString& handle, const QString& variantID);
    void followCart();
    void followCheckout();
    void noteCheckout(const CheckoutModel& checkout);
    [[nodiscard]] QCoro::Task<> fetch(Place* place);
    [[nodiscard]] QCoro::Task<> seek(Place* place);
    [[nodiscard]] QCoro::Task<> addWanted();

    Services m_services;
    std::vector<std::unique_ptr<Place>> m_places;
    QHash<QString, QString> m_added; ///< what was put into the cart from here: variants, by their products' handles
    QSet<QString> m_seenInCart;      ///< those variants that came to be there
    bool m_asksSizes = false;
    QStringList m_soldOut; ///< titles
    std::optional<APIError> m_addFailure;
    bool m_hasCheckoutFailed = false;
    bool m_wantsCheckout = false;
    Work m_adding;
};

} // namespace loom
