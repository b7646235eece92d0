/** How lists are ordered, by the platform's names for it. Ties keep the order of the catalog. */
const orders = {
  TITLE: (one, other) => one.title.localeCompare(other.title),
  PRODUCT_TYPE: (one, other) => one.productType.localeCompare(other.productType),
  VENDOR: (one, other) => one.vendor.localeCompare(other.vendor),
  CREATED_AT: (one, other) => one.createdAt.localeCompare(other.createdAt),
  CREATED: (one, other) => one.createdAt.localeCompare(other.createdAt),
  UPDATED_AT: (one, other) => one.updatedAt.localeCompare(other.updatedAt),
  PRICE: (one, other) => one.lowest - other.lowest,
  BEST_SELLING: (one, other) => other.popularity - one.popularity,
  ID: (one, other) => one.index - other.index,
};

/** COLLECTION_DEFAULT, MANUAL and RELEVANCE have no order of their own: the list comes in it already. */
export function sortPieces(pieces, sortKey, reverse) {
  const order = orders[sortKey];
  const sorted = order ? [...pieces].sort(order) : [...pieces];
  return reverse ? sorted.reverse() : sorted;
}
