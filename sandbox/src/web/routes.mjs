import { aboutPage } from './pages/about.mjs';
import { accountPage } from './pages/account.mjs';
import { agreementPage, agreementsPage } from './pages/agreements.mjs';
import { brandsPage } from './pages/brands.mjs';
import { cartPage } from './pages/cart.mjs';
import { closetPage } from './pages/closet.mjs';
import { collectionPage, collectionsPage } from './pages/collection.mjs';
import { followingPage } from './pages/following.mjs';
import { helpPage } from './pages/help.mjs';
import { homePage } from './pages/home.mjs';
import { imageSearchPage } from './pages/imageSearch.mjs';
import { miraPage } from './pages/mira.mjs';
import { notificationsPage } from './pages/notifications.mjs';
import { productPage } from './pages/product.mjs';
import { railPage } from './pages/rail.mjs';
import { searchPage } from './pages/search.mjs';
import { starlookPage } from './pages/starlook.mjs';
import { lookbookPage, outfitIdeasPage, studioPage } from './pages/styling.mjs';
import { toolsPage } from './pages/tools.mjs';
import { vessaPage } from './pages/vessa.mjs';
import { wishlistPage } from './pages/wishlist.mjs';

const sections = {
  'brands-at-loomstreet': brandsPage,
  starlook: starlookPage,
  vessa: vessaPage,
  mira: miraPage,
  wishlist: wishlistPage,
  tools: toolsPage,
  'size-advice': toolsPage,
  closet: closetPage,
  studio: studioPage,
  lookbook: lookbookPage,
  'outfit-ideas': outfitIdeasPage,
  following: followingPage,
  notifications: notificationsPage,
  'image-search': imageSearchPage,
  'help-center': helpPage,
  agreements: agreementsPage,
  'about-us': aboutPage,
};

/**
 * The page of an address: {title, body, status} or {redirect}. Null for something the store could have but has not, such
 * as a piece that is gone; undefined for an address it has no kind of page for.
 */
export function pageFor(exchange, store) {
  const [first, second, third, fourth, ...rest] = exchange.segments.filter((segment, place) => segment !== '' || place === 0);
  if (rest.length > 0) return undefined;
  const request = { query: exchange.query, path: exchange.path };
  switch (first) {
    case '':
      return second === undefined ? homePage(store) : undefined;
    case 'cart':
      return second === undefined ? cartPage(store) : undefined;
    case 'search':
      return second === undefined ? searchPage(store, request) : undefined;
    case 'account':
      return fourth === undefined ? accountPage(store, [second, third], request) : undefined;
    case 'products':
      return second && third === undefined ? productPage(store, second) : undefined;
    case 'collections':
      return inCollections(store, request, [second, third, fourth]);
    case 'pages':
      return inPages(store, request, [second, third, fourth]);
    default:
      return undefined;
  }
}

function inCollections(store, request, [handle, below, piece]) {
  if (handle === undefined) return collectionsPage(store);
  if (below === undefined) return collectionPage(store, handle, request);
  return below === 'products' && piece !== undefined ? productPage(store, piece) : undefined;
}

function inPages(store, request, [name, below, further]) {
  if (further !== undefined) return undefined;
  if (below !== undefined) return name === 'agreements' ? agreementPage(below) : undefined;
  if (name?.startsWith('rail-')) return railPage(store, name.slice('rail-'.length));
  return Object.hasOwn(sections, name ?? '') ? sections[name](store, request) : undefined;
}
