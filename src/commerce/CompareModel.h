#pragma once

#include "catalog/ProductDetails.h"
#include "commerce/KeptPiecesModel.h"

namespace loom
{

/// Two to four pieces side by side, each as the shopper's market has it. Main thread.
class CompareModel final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QStringList handles READ handles NOTIFY handlesChanged)
    Q_PROPERTY(int count READ count NOTIFY handlesChanged)
    Q_PROPERTY(bool isFull READ isFull NOTIFY handlesChanged)
    Q_PROPERTY(QVariantList columns READ columns NOTIFY columnsChanged)
    Q_PROPERTY(QVariantList specs READ specs NOTIFY columnsChanged)
    Q_PROPERTY(QVariantList candidates READ candidates NOTIFY candidatesChanged)

public:
    static constexpr qsizetype maximum = 4;

    enum class State { Loading, Loaded, Missing, Failed };
    Q_ENUM(State)

    CompareModel(const QStringList& handles, std::vector<const KeptPieces*> lists, KeptPiecesModel::Services services,
                 QObject* parent = nullptr);
    ~CompareModel() override;

    [[nodiscard]] QStringList handles() const;
    [[nodiscard]] int count() const { return static_cast<int>(m_columns.size()); }
    [[nodiscard]] bool isFull() const { return count() >= maximum; }
    /// {"handle", "state", "errorText", "title", "designer", "price", "formerPrice", "picture", "soldOut", "item",
    /// "sizes", "composition"} each; the sizes are {"text", "isAvailable"}.
    [[nodiscard]] QVariantList columns() const;
    /// {"key", "values"} each, with a value for every column.
    [[nodiscard]] QVariantList specs() const;
    /// Kept pieces that could be added: {"handle", "title", "designer", "picture"} each.
    [[nodiscard]] QVariantList candidates() const;

    Q_INVOKABLE void add(const QString& handle);
    Q_INVOKABLE void remove(const QString& handle);
    Q_INVOKABLE void reload();
    /// Tries anew what failed.
    Q_INVOKABLE void retry();

Q_SIGNALS:
    void handlesChanged();
    void columnsChanged();
    void candidatesChanged();

private:
    struct Column;

    void append(const QString& handle);
    [[nodiscard]] QCoro::Task<> fetch(Column* column);
    [[nodiscard]] const ProductListItem* kept(const QString& handle) const;
    [[nodiscard]] QVariantMap describe(const Column& column) const;

    std::vector<const KeptPieces*> m_lists;
    KeptPiecesModel::Services m_services;
    std::vector<std::unique_ptr<Column>> m_columns;
};

/// Each once, the first four.
[[nodiscard]] QStringList comparedHandles(const QStringList& handles);

} // namespace loom
