#pragma once

#include "commerce/CartStore.h"
#include "commerce/ShippingProgress.h"

#include <QAbstractListModel>

namespace loom
{

class MarketStore;
class MoneyFormat;

/// The cart as its panel and its page show it: a row for each line, and every text beside them. One per process, as
/// the cart is; main thread.
class CartModel final : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(loom::CartModel::Presentation presentation READ presentation NOTIFY changed)
    Q_PROPERTY(int itemCount READ itemCount NOTIFY changed)
    Q_PROPERTY(QString itemCountText READ itemCountText NOTIFY changed)
    Q_PROPERTY(QUrl checkoutURL READ checkoutURL NOTIFY changed)
    Q_PROPERTY(QString subtotal READ subtotal NOTIFY changed)
    Q_PROPERTY(QString discount READ discount NOTIFY changed)
    Q_PROPERTY(QString total READ total NOTIFY changed)
    Q_PROPERTY(QString appliedCode READ appliedCode NOTIFY changed)
    Q_PROPERTY(bool isApplyingCode READ isApplyingCode NOTIFY changed)
    Q_PROPERTY(QString codeMessage READ codeMessage NOTIFY changed)
    Q_PROPERTY(bool hasShipping READ hasShipping NOTIFY changed)
    Q_PROPERTY(bool isShippingFree READ isShippingFree NOTIFY changed)
    Q_PROPERTY(double shippingFraction READ shippingFraction NOTIFY changed)
    Q_PROPERTY(QString shippingText READ shippingText NOTIFY changed)
    Q_PROPERTY(QString shippingThreshold READ shippingThreshold NOTIFY changed)
    Q_PROPERTY(QString errorText READ errorText NOTIFY changed)
    Q_PROPERTY(int addedRow READ addedRow NOTIFY changed)
    Q_PROPERTY(QString removedTitle READ removedTitle NOTIFY changed)
    Q_PROPERTY(int lostCount READ lostCount NOTIFY changed)
    Q_PROPERTY(bool isPuttingBack READ isPuttingBack NOTIFY changed)

public:
    enum class Presentation { Loading, Failed, Empty, Lines };
    Q_ENUM(Presentation)
    enum Role {
        LineIdRole = Qt::UserRole + 1,
        HandleRole,
        TitleRole,
        DesignerRole,
        ChoiceRole,
        PictureRole,
        QuantityRole,
        PriceRole,
        FormerPriceRole,
        BusyRole,
        AddedRole,
        NoteRole
    };
    Q_ENUM(Role)

    /// `freeShippingThreshold` is in US dollars.
    CartModel(CartStore& store, double freeShippingThreshold, const MarketStore& market, const MoneyFormat& money,
              Clock& clock, QObject* parent = nullptr);

    [[nodiscard]] Presentation presentation() const;
    [[nodiscard]] int itemCount() const;
    [[nodiscard]] QString itemCountText() const;
    [[nodiscard]] QUrl checkoutURL() const;
    [[nodiscard]] QString subtotal() const;
    [[nodiscard]] QString total() const;
    /// What the codes take off; empty while that is nothing.
    [[nodiscard]] QString discount() const;
    [[nodiscard]] QString appliedCode() const;
    [[nodiscard]] bool isApplyingCode() const { return m_store.isApplyingCode(); }
    /// Why the code that was tried last is not on the cart.
    [[nodiscard]] QString codeMessage() const;
    [[nodiscard]] bool hasShipping() const { return m_shipping.has_value(); }
    [[nodiscard]] bool isShippingFree() const { return m_shipping && m_shipping->isFree(); }
    [[nodiscard]] double shippingFraction() const { return m_shipping ? m_shipping->fraction : 0; }
    [[nodiscard]] QString shippingText() const;
    [[nodiscard]] QString shippingThreshold() const;
    [[nodiscard]] QString errorText() const;
    /// The row of what was added a moment ago; -1 when there is none.
    [[nodiscard]] int addedRow() const;
    /// The piece that was taken out a moment ago and can be put back; empty when there is none.
    [[nodiscard]] QString removedTitle() const;
    /// How many pieces were in a cart that the platform gave up.
    [[nodiscard]] int lostCount() const;
    [[nodiscard]] bool isPuttingBack() const { return m_puttingBack.isRunning(); }

    Q_INVOKABLE void refresh();
    Q_INVOKABLE void setQuantity(const QString& lineID, int quantity);
    Q_INVOKABLE void remove(const QString& lineID);
    Q_INVOKABLE void undoRemoval();
    Q_INVOKABLE void applyCode(const QString& text);
    Q_INVOKABLE void removeCode();
    /// The shopper writes another code.
    Q_INVOKABLE void forgetCodeMessage();
    Q_INVOKABLE void restoreLostLines();
    Q_INVOKABLE void forgetLostLines() { m_store.forgetLostLines(); }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void changed();

private:
    /// A line as its row shows it.
    struct Row {
        CartLine line;
        qint64 shownQuantity = 0;
        bool isBusy = false;
        bool isAdded = false;
        bool isClamped = false;

        bool operator==(const Row&) const = default;
    };
    struct Removed {
        CartLineInput line;
        QString lineID;
        QString title;
        bool isOffered = false; ///< it is gone, and the time to put it back runs
    };

    void update();
    void showRows(std::vector<Row> rows);
    [[nodiscard]] QString note(const Row& row) const;
    void offerWhenGone();
    [[nodiscard]] QCoro::Task<> offerUndo();
    [[nodiscard]] QCoro::Task<> putBack(Removed removed);
    [[nodiscard]] QCoro::Task<> restore();
    [[nodiscard]] QCoro::Task<> apply(QString text);

    CartStore& m_store;
    double m_freeShippingThreshold;
    const MarketStore& m_market;
    const MoneyFormat& m_money;
    Clock& m_clock;
    std::vector<Row> m_rows;
    std::optional<ShippingProgress> m_shipping;
    std::optional<QString> m_refusedCode;
    bool m_codeFailed = false;
    std::optional<APIError> m_failure;
    std::optional<Removed> m_removed;
    Work m_offering;
    Work m_puttingBack;
    Work m_applying;
};

} // namespace loom
