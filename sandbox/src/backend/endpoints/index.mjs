import { addAlert, listAlerts, removeAlert } from './alerts.mjs';
import { prepareCheckout, revokeCheckout, startCheckout } from './checkout.mjs';
import { readConfig } from './config.mjs';
import { reportCrash } from './crashReports.mjs';
import { listNotifications, readNotifications } from './notifications.mjs';
import { listOrders, trackParcel } from './orders.mjs';
import { readProfile, updateProfile } from './profile.mjs';
import { exchangeProvider, startProviders } from './providers.mjs';
import { brandStats, companions, feed, productStats, rails, searchAI } from './reco.mjs';
import { readRelease } from './release.mjs';
import { deleteAccount, requestCode, setPassword, signInWithCode, signInWithPassword } from './signIn.mjs';
import { openThread, readGuide, readWeather, recommendSize, sendMessage } from './stylist.mjs';
import { openSupport, readSupport, supportReplies, uploadSupport, writeSupport } from './support.mjs';
import { track } from './track.mjs';
import { wishlistSync } from './wishlist.mjs';

/**
 * Every endpoint is one object with {path, methods, public, keyless, anonymous, customer, handle}. A public one lies below
 * /api/pub and needs no widget key, the others lie below /api/support/widget and want it unless they are keyless, as an
 * address that a browser opens may be. A customer's endpoint wants the token of somebody signed in, an anonymous one looks
 * at none, any other takes guests and customers. handle(call, store) gets {input, files, query, exchange, account} and
 * returns the JSON to answer with, throws a BackendError, or answers the exchange itself.
 */
export const endpoints = [
  requestCode, signInWithCode, signInWithPassword, setPassword, deleteAccount, ...startProviders, exchangeProvider,
  listOrders, trackParcel, readProfile, updateProfile, listAlerts, addAlert, removeAlert,
  listNotifications, readNotifications, openSupport, writeSupport, uploadSupport, supportReplies, readSupport,
  prepareCheckout, revokeCheckout, startCheckout, track, wishlistSync,
  openThread, sendMessage, readGuide, recommendSize, readWeather,
  feed, companions, rails, searchAI, productStats, brandStats, readConfig, readRelease, reportCrash,
];
