import { collectionTitle } from '../catalog/titles.mjs';
import { escapeHtml } from '../markup.mjs';
import { hosts } from '../hosts.mjs';
import { connect } from './connection.mjs';
import { filterPieces, offerFilters } from './filters.mjs';
import { sortPieces } from './sorting.mjs';

const Collection = {
  description: ({ description }) => description,
  descriptionHtml: ({ description }) => `<p>${escapeHtml(description)}</p>`,
  metafield: () => null,
  metafields: (_, { identifiers }) => identifiers.map(() => null),
  onlineStoreUrl: ({ handle }) => `https://${hosts.web}/collections/${handle}`,
  products: (collection, args, { market, language }) => {
    const { filters, sortKey, reverse, ...page } = args;
    const pieces = sortPieces(filterPieces(collection.pieces, filters, market), sortKey, reverse);
    return connect(pieces, page, { filters: () => offerFilters(collection.pieces, filters, market, language) });
  },
  seo: ({ title, description }) => ({ title, description }),
  title: (collection, _, { language }) => collectionTitle(collection, language),
  updatedAt: ({ pieces }, _, { catalog }) => pieces[0]?.updatedAt ?? catalog.calendar.daysAgo(30),
};

export const collectionResolvers = { Collection };
