import { collectionTitle } from '../catalog/titles.mjs';
import { hosts } from '../hosts.mjs';
import { markets } from '../markets/markets.mjs';
import { connect } from './connection.mjs';
import { filterPieces, offerFilters } from './filters.mjs';
import { requireGlobalId, requireSize } from './inputs.mjs';
import { parseProductQuery } from './productQuery.mjs';
import { words } from './searchIndex.mjs';
import { sortPieces } from './sorting.mjs';

const QueryRoot = {
  cart: (_, { id }, { carts }) => {
    requireGlobalId(id);
    return carts.find(id);
  },
  collection: (_, { handle, id }, { catalog, market }) => {
    if (handle) return catalog.collection(handle, market);
    const collection = id ? lookUp(catalog, id) : null;
    return collection?.__typename === 'Collection' && market.sells(collection.handle) ? collection : null;
  },
  collections: (_, args, { catalog, market }) => connect(catalog.collections.filter(({ handle }) => market.sells(handle)), args),
  localization: () => ({}),
  node: (_, { id }, context) => nodeOf(id, context),
  nodes: (_, { ids }, context) => {
    requireSize(ids);
    return ids.map((id) => nodeOf(id, context));
  },
  predictiveSearch,
  product: (_, { handle, id }, { catalog }) => {
    if (handle) return catalog.piece(handle);
    const piece = id ? lookUp(catalog, id) : null;
    return piece?.__typename === 'Product' ? piece : null;
  },
  productRecommendations: (_, { productId, productHandle, intent }, { catalog }) => {
    const piece = productId ? lookUp(catalog, productId) : catalog.piece(productHandle);
    return piece?.__typename === 'Product' ? recommend(piece, intent, catalog) : null;
  },
  productTags: (_, args, { catalog }) => connect([...new Set(catalog.pieces.flatMap(({ tags }) => tags))].sort(), args),
  productTypes: (_, args, { catalog }) => {
    const types = new Set(catalog.pieces.map(({ productType }) => productType));
    return connect([...types].filter(Boolean).sort(), args);
  },
  products: (_, { query, sortKey, reverse, ...page }, { catalog, market }) => {
    const pieces = query?.trim() ? catalog.pieces.filter(parseProductQuery(query, market)) : catalog.pieces;
    return connect(sortPieces(pieces, sortKey, reverse), page, { filters: () => offerFilters(pieces, [], market, 'EN') });
  },
  search,
  shop: () => ({
    id: 'gid://shopify/Shop/81000000001',
    name: 'LOOMSTREET',
    description: 'A store for designers’ pieces, on this machine only.',
    moneyFormat: '${{amount}}',
    primaryDomain: { host: hosts.web, sslEnabled: true, url: `https://${hosts.web}` },
    shipsToCountries: [...markets.keys()],
  }),
};

export const rootResolvers = { QueryRoot };

function search(_, args, { index, market, language }) {
  const { query, productFilters, sortKey, reverse, unavailableProducts, prefix, types, ...page } = args;
  const found = !types || types.includes('PRODUCT') ? index().find(query, { prefix: prefix === 'LAST' }) : [];
  let pieces = sortPieces(filterPieces(found, productFilters, market), sortKey, reverse);
  if (unavailableProducts === 'HIDE') pieces = pieces.filter(({ available }) => available);
  if (!unavailableProducts || unavailableProducts === 'LAST') {
    pieces = [...pieces.filter(({ available }) => available), ...pieces.filter(({ available }) => !available)];
  }
  return connect(pieces, page, {
    totalCount: pieces.length,
    productFilters: () => offerFilters(found, productFilters, market, language),
  });
}

/** The limit counts all kinds of results together, unless each kind is to have it for itself. */
function predictiveSearch(_, { query, limit, limitScope, types }, { catalog, index, market, language }) {
  const wanted = (type) => !types || types.includes(type);
  const most = Math.min(limit ?? 10, 10);
  const beginnings = words(query).filter((word) => word.length > 1);
  const begun = (word) => beginnings.some((beginning) => word.startsWith(beginning));
  const inTitle = (collection) => market.sells(collection.handle) && words(collectionTitle(collection, language)).some(begun);
  const room = { queries: most, collections: most };
  if (limitScope !== 'EACH') {
    room.queries = Math.floor(most / 3);
    room.collections = Math.floor(most / 3);
  }
  const queries = wanted('QUERY') ? index().phrases(query, room.queries) : [];
  const collections = wanted('COLLECTION') ? catalog.collections.filter(inTitle).slice(0, room.collections) : [];
  const left = limitScope === 'EACH' ? most : most - queries.length - collections.length;
  const products = wanted('PRODUCT') ? index().find(query, { prefix: true }).filter(({ available }) => available).slice(0, left) : [];
  return {
    queries: queries.map((text) => ({ text, styledText: text })),
    collections, products, articles: [], pages: [],
  };
}

/** Related pieces are of the same kind and near in price; complementary ones of another kind, in a shared colour. */
function recommend(piece, intent, catalog) {
  const regular = catalog.pieces.filter((other) => other !== piece && !other.curiosity && other.department === piece.department);
  const distance = (other) => Math.abs(Math.log((other.lowest + 1) / (piece.lowest + 1))) - (other.vendor === piece.vendor ? 0.3 : 0);
  const kin = intent === 'COMPLEMENTARY'
    ? regular.filter((other) => other.productType !== piece.productType && other.colours.some((colour) => piece.colours.includes(colour)))
    : regular.filter((other) => other.productType === piece.productType);
  return kin.map((other) => [distance(other), other]).sort(([one], [other]) => one - other).slice(0, 10).map(([, other]) => other);
}

function nodeOf(id, { catalog, carts }) {
  return id.startsWith('gid://shopify/Cart/') ? carts.find(id) : lookUp(catalog, id);
}

/** One malformed identifier fails the whole field; an unknown one is merely absent. */
function lookUp(catalog, id) {
  requireGlobalId(id);
  return catalog.byId.get(id) ?? null;
}
