import { imageUrl } from '../catalog/images.mjs';

/** Every type of notification there is, with what one says when nothing else is asked for. */
export const examples = {
  order_confirmed: {
    title: 'Order confirmed', body: 'Thank you! Order LST10483 is confirmed. Tap to see what is in it.', link: '/account/orders/LST10483',
    image: imageUrl('wren-striped-shirt', 1),
  },
  order_shipped: { title: 'Your order is on its way', body: 'Order LST10482 left our house with Loom Post.', link: '/account/orders/LST10482' },
  order_out: { title: 'Out for delivery', body: 'A parcel of order LST10455 comes today.', link: '/account/orders/LST10455' },
  order_delivered: {
    title: 'Delivered', body: 'Order LST10440 has arrived. Tap to tell others how it fits.', link: '/account/orders/LST10440',
    image: imageUrl('odile-tiered-dress', 1),
  },
  order_problem: { title: 'A parcel needs you', body: 'The carrier could not find the address of order LST10455.', link: '/account/orders/LST10455' },
  order_cancelled: { title: 'Order cancelled', body: 'Order LST10398 was cancelled before it was packed.', link: '/account/orders/LST10398' },
  refund_approved: { title: 'Return approved', body: 'Your return RMA-20771 is approved. Tap to print the label.', link: '/account/returns' },
  refund_issued: { title: 'Refund issued', body: '$138.00 are on their way back to your card for order LST10367.', link: '/account/returns' },
  refund_refused: { title: 'Return refused', body: 'We could not take a piece of order LST10367 back.', link: '/account/returns' },
  restock: {
    title: 'Back in stock', body: 'Lune crescent bag is available again in Butter / One size.', link: '/products/lune-crescent-bag',
    image: imageUrl('lune-crescent-bag', 1),
  },
  price_drop: {
    title: 'Price drop', body: 'Marlow wrap dress is now $193.20, down from $276.00.', link: '/products/marlow-wrap-dress',
    image: imageUrl('marlow-wrap-dress', 1),
  },
  vessa_like: { title: 'Hana K. liked your note', body: 'Hana K. and 6 others liked “Four ways to wear one slip”.', link: '/pages/vessa?note=four-ways' },
  vessa_comment: { title: 'New comment', body: 'Jonas W.: “Where is the belt from?” Tap to answer.', link: '/pages/vessa?note=four-ways' },
  vessa_follow: { title: 'New follower', body: 'Mireille D. follows you now.', link: '/pages/vessa?user=mireille' },
  vessa_message: { title: 'Message from Hana K.', body: 'Shall we swap the blazer for a week?', link: '/pages/vessa?user=hana' },
  membership_tier: { title: 'You are Atelier now', body: 'Free express shipping and early access for a whole year.', link: '/account/membership' },
  membership_points: { title: '248 points added', body: 'For your order LST10482. You have 1,930 points.', link: '/account/membership' },
  coupon: { title: 'A coupon for you', body: 'WELCOME10 takes ten percent off. Tap to use it by Sunday.', link: '/account/coupons' },
  promotion: { title: 'The season’s first coats', body: 'Gabardine and wool, just in from Aldine Row and friends.', link: '/collections/new-in' },
  new_drop: {
    title: 'Fenmoor Mill sent four new knits', body: 'A designer you follow has something new.', link: '/collections/fenmoor-mill',
    image: imageUrl('brae-cable-rollneck', 1),
  },
  event: { title: 'An evening with Corvin Atelier', body: 'Thursday at seven, on screen. Tap to keep a seat.', link: '/pages/starlook' },
  support_reply: { title: 'Customer Service', body: 'We wrote to you about order LST10455.', link: null },
  system: { title: 'New shipping times', body: 'Orders before noon leave our house on the same day.', link: '/pages/help' },
  security: { title: 'New sign-in', body: 'Somebody signed in to your account on a new computer. If it was not you, change your password.', link: '/account/profile' },
};

export const notificationTypes = Object.keys(examples);

/** Ages in hours, null for one that nobody dated; newest first. */
const ages = {
  order_confirmed: [4.8, true], support_reply: [5.5, true], order_out: [7.6, false], vessa_like: [9, undefined], price_drop: [12, true],
  order_shipped: [30, false], restock: [33, true], vessa_comment: [50, true], coupon: [54, false], order_problem: [56, true],
  refund_approved: [11 * 24, false], new_drop: [12 * 24, false], vessa_follow: [13 * 24, undefined], membership_points: [14 * 24, false],
  promotion: [15 * 24, true], system: [null, false], vessa_message: [16 * 24, false], order_delivered: [17 * 24, false],
  security: [20 * 24, false], event: [null, true], refund_issued: [36 * 24, false], refund_refused: [30 * 24, false],
  order_cancelled: [33 * 24, false], membership_tier: [60 * 24, false],
};

/** What a customer was told before the store was started: one of each type, some read, some without a date. */
export function pastNotifications() {
  const placed = Object.entries(ages).map(([type, [age, sourceUnread]]) => ({ type, age, sourceUnread }));
  return placed.sort((one, other) => (other.age ?? 18 * 24) - (one.age ?? 18 * 24)).map(({ type, ...rest }) => ({ type, ...examples[type], ...rest }));
}
