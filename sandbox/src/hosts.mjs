/** The names the store answers to. All lie below one domain, which is all its certificate authority may sign for. */
export const domain = 'loomstreet.example';

export const hosts = {
  shop: `shop.${domain}`,
  service: `service.${domain}`,
  web: `www.${domain}`,
  bareWeb: domain,
  cdn: `cdn.${domain}`,
  bank: `bank.${domain}`,
};

export const hostNames = Object.values(hosts);

/** Keys of a store that exists on one machine only: they identify the caller, they protect nothing. */
export const storefrontToken = 'sandbox-storefront-token';
export const supportKey = 'sandbox-widget-key';
