import { once } from 'node:events';
import { join } from 'node:path';

import { accountControls } from './accounts/controls.mjs';
import { openSignIns } from './accounts/signIns.mjs';
import { BackendSite } from './backend/site.mjs';
import { crashReportControls, CrashReports } from './backend/endpoints/crashReports.mjs';
import { Tracker } from './backend/endpoints/track.mjs';
import { Wishlists } from './backend/endpoints/wishlist.mjs';
import { Catalog } from './catalog/catalog.mjs';
import { Prices } from './catalog/prices.mjs';
import { Stock } from './catalog/stock.mjs';
import { checkoutUrl } from './checkout/addresses.mjs';
import { BankSite } from './checkout/bankSite.mjs';
import { Checkouts } from './checkout/checkouts.mjs';
import { checkoutControls } from './checkout/controls.mjs';
import { Customers } from './checkout/customers.mjs';
import { HandOvers } from './checkout/handOvers.mjs';
import { CheckoutSettings } from './checkout/settings.mjs';
import { CheckoutSite } from './checkout/site.mjs';
import { configControls } from './config/controls.mjs';
import { RemoteConfig } from './config/remoteConfig.mjs';
import { domain, hostNames, hosts, storefrontToken, supportKey } from './hosts.mjs';
import { notificationControls } from './notifications/controls.mjs';
import { Happenings } from './notifications/happenings.mjs';
import { Notifications } from './notifications/notifications.mjs';
import { Alerts } from './orders/alerts.mjs';
import { Orders } from './orders/orders.mjs';
import { pastAlertsAt, pastAt } from './orders/past.mjs';
import { PictureSite } from './pictures/site.mjs';
import { Studio } from './pictures/studio.mjs';
import { recoControls } from './reco/controls.mjs';
import { RecoModes } from './reco/modes.mjs';
import { Recommender } from './reco/recommender.mjs';
import { SentenceSearch } from './reco/search.mjs';
import { releaseControls } from './releases/controls.mjs';
import { Releases } from './releases/releases.mjs';
import { ReleaseSite } from './releases/site.mjs';
import { loadCertificates } from './server/certificates.mjs';
import { createControl } from './server/control.mjs';
import { Faults } from './server/faults.mjs';
import { Journal } from './server/journal.mjs';
import { createProxy } from './server/proxy.mjs';
import { createSecureStore } from './server/secure.mjs';
import { ShopSite } from './shop.mjs';
import { Carts } from './storefront/carts.mjs';
import { StorefrontSite } from './storefront/site.mjs';
import { stylistControls } from './stylist/controls.mjs';
import { Stylist } from './stylist/stylist.mjs';
import { supportControls } from './support/controls.mjs';
import { Conversations } from './support/conversations.mjs';
import { SupportFiles } from './support/files.mjs';
import { SupportSettings } from './support/settings.mjs';
import { Calls } from './voice/calls.mjs';
import { voiceControls } from './voice/controls.mjs';
import { BareWebSite, WebSite } from './web/site.mjs';

/**
 * Starts the whole store and resolves once it answers: {ready, catalog, close}. ready is what an application needs to
 * know to shop here. log(line) is told of requests, announce(line) of the codes that a real store would send by mail; now()
 * is the time that codes and sessions go by. voiceScript is what shoppers say in calls, line by line.
 */
export async function startStore({
  seed = 'loomstreet', pieces = 420, stateDir, port = 0, controlPort = 0, startedAt = Date.now(), log = null, announce = () => {}, now = Date.now, voiceScript = null,
}) {
  const certificatesLoaded = loadCertificates(stateDir, { domain, hostNames });
  const journal = new Journal({ log });
  const faults = new Faults();
  const carts = new Carts();
  const settings = new CheckoutSettings();
  const tracker = new Tracker();
  const crashReports = new CrashReports();
  const wishlists = new Wishlists();
  const catalog = new Catalog({ seed, count: pieces, startedAt });
  const signIns = openSignIns({ now, announce, startedAt });
  const customers = new Customers(signIns.accounts);
  const checkouts = new Checkouts({ carts, customers, now });
  const handOvers = new HandOvers();
  const orders = new Orders({ checkouts, now, past: () => pastAt(catalog, startedAt) });
  const alerts = new Alerts({ catalog, now, past: () => pastAlertsAt(startedAt) });
  const notifications = new Notifications({ now, startedAt });
  const happenings = new Happenings({ accounts: signIns.accounts, alerts, catalog, notifications, orders, wishlists });
  const stock = new Stock(catalog, { changed: () => happenings.lookForAll() });
  const prices = new Prices(catalog, { changed: (piece, before) => happenings.priceChanged(piece, before) });
  const supportSettings = new SupportSettings();
  const supportFiles = new SupportFiles();
  const conversations = new Conversations({ now, startedAt, settings: supportSettings, orders });
  const pictures = new PictureSite({ catalog, studio: new Studio(join(stateDir, 'pictures')), journal });
  const storefront = new StorefrontSite({ catalog, carts, checkoutUrl: (cart) => checkoutUrl(cart, settings.values), journal });
  const pages = new CheckoutSite({ carts, checkouts, customers, settings, journal });
  const recommender = new Recommender({ catalog, seed });
  const recoModes = new RecoModes();
  const remoteConfig = new RemoteConfig({ startedAt });
  const releases = new Releases();
  const stylist = new Stylist({ catalog, orders, index: () => storefront.index, seed, now });
  const calls = new Calls({ accounts: signIns.accounts, catalog, stylist, seed, now, script: voiceScript });
  const backend = {
    ...signIns, alerts, calls, conversations, happenings, notifications, supportFiles, carts, catalog, crashReports, customers, handOvers, orders, recoModes, recommender, releases, remoteConfig, settings, tracker, wishlists,
    stylist, releaseSite: new ReleaseSite({ releases, journal }), sentenceSearch: new SentenceSearch({ catalog, recommender, index: () => storefront.index }),
  };
  const sites = new Map([
    [hosts.shop, new ShopSite({ storefront, checkout: pages })],
    [hosts.service, new BackendSite({ store: backend, journal })],
    [hosts.cdn, pictures],
    [hosts.web, new WebSite({ catalog, storefront, pictures, journal })],
    [hosts.bareWeb, new BareWebSite()],
    [hosts.bank, new BankSite({ checkouts, journal })],
  ]);

  const reset = () => {
    const kept = [
      faults, carts, checkouts, handOvers, stock, prices, settings, ...Object.values(signIns), orders, alerts, tracker, crashReports, wishlists, recoModes,
      remoteConfig, releases, journal, supportSettings, supportFiles, conversations, notifications, happenings, stylist, calls,
    ];
    kept.forEach((part) => part.clear());
    pages.release();
  };
  const certificates = await certificatesLoaded;
  const secure = createSecureStore({ certificates, sites, journal, faults });
  const proxy = createProxy({ secureServer: secure, hostNames, journal });
  const more = {
    ...checkoutControls({ carts, checkouts, customers, settings, pages, stock, prices }),
    ...accountControls({ ...signIns, orders, faults }),
    ...recoControls({ recoModes }),
    ...configControls({ remoteConfig }),
    ...releaseControls({ releases }),
    ...crashReportControls({ crashReports }),
    ...stylistControls({ stylist, faults }),
    ...voiceControls({ calls }),
    ...notificationControls({ accounts: signIns.accounts, notifications }),
    ...supportControls({ conversations, supportSettings }),
  };
  const control = createControl({ journal, faults, tracker, wishlists, more, reset });
  const [proxyPort, ownControlPort] = await Promise.all([listen(proxy, port), listen(control, controlPort)]);

  return {
    catalog,
    ready: {
      pid: process.pid,
      proxy: `http://127.0.0.1:${proxyPort}`,
      control: `http://127.0.0.1:${ownControlPort}`,
      caFile: certificates.caFile,
      shopifyDomain: hosts.shop,
      storefrontToken,
      supportBase: `https://${hosts.service}`,
      supportKey,
      storeWebURL: `https://${hosts.web}`,
    },
    async close() {
      faults.clear();
      calls.clear();
      proxy.endTunnels();
      secure.endSessions();
      control.closeAllConnections?.();
      await Promise.all([proxy, control].map((server) => new Promise((resolve) => server.close(resolve))));
    },
  };
}

async function listen(server, port) {
  server.listen(port, '127.0.0.1');
  await once(server, 'listening');
  return server.address().port;
}
