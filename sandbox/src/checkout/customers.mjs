const sample = { email: 'ines@example.com', label: 'ines@example.com', account: null };

/** Who is known in the checkout of a cart: whoever was handed over to it, as long as they are signed in. */
export class Customers {
  #accounts;

  constructor(accounts) {
    this.#accounts = accounts;
  }

  /** {email, label, account} or null. Somebody handed over without a token is the sample customer, who has no account. */
  of({ handedOver }) {
    if (!handedOver) return null;
    if (handedOver.appToken === undefined) return sample;
    const account = this.#accounts.ofToken(handedOver.appToken);
    return account && { email: account.email, label: account.name ? `${account.name} (${account.email})` : account.email, account };
  }
}
