import { execute, GraphQLError } from 'graphql';

import { hosts, storefrontToken } from '../hosts.mjs';
import { marketOf } from '../markets/markets.mjs';
import { contextOf, Documents, operationName } from './documents.mjs';
import { loadSchema } from './schema.mjs';
import { SearchIndex } from './searchIndex.mjs';

const endpoint = '/api/2025-04/graphql.json';

/** The Storefront API, on the shop's host. */
export class StorefrontSite {
  #catalog;
  #carts;
  #checkoutUrl;
  #journal;
  #schema = loadSchema();
  #documents = new Documents(this.#schema);
  #index = null;
  #calls = new WeakMap();

  constructor({ catalog, carts, checkoutUrl, journal }) {
    this.#catalog = catalog;
    this.#carts = carts;
    this.#checkoutUrl = checkoutUrl;
    this.#journal = journal;
  }

  get index() {
    this.#index ??= new SearchIndex(this.#catalog);
    return this.#index;
  }

  takesCalls(exchange) {
    return exchange.path === endpoint;
  }

  /** Reads the call ahead of everything else, because faults are asked for by operation. */
  async identify(exchange) {
    if (exchange.path !== endpoint || exchange.method !== 'POST') return;
    const text = (await exchange.body()).toString('utf8');
    const call = readCall(text);
    if (!call) return;
    const entry = this.#documents.read(call.query);
    exchange.operation = operationName(entry, call.operationName);
    this.#calls.set(exchange, { ...call, entry });
  }

  handle(exchange) {
    if (exchange.path !== endpoint) {
      this.#journal.unknownPath(exchange);
      exchange.sendJson(404, { errors: 'Not Found' });
    } else if (exchange.method !== 'POST') {
      exchange.sendJson(405, { errors: 'Method Not Allowed' }, { allow: 'POST' });
    } else {
      this.#answer(exchange);
    }
  }

  #answer(exchange) {
    const token = exchange.headers['x-shopify-storefront-access-token'];
    if (token !== storefrontToken) {
      exchange.sendJson(token ? 403 : 401, { errors: [{ message: '', extensions: { code: 'UNAUTHORIZED' } }] });
      return;
    }
    const call = this.#calls.get(exchange);
    if (!call) {
      this.#journal.surprise('document', { host: hosts.shop, operation: null, messages: ['the body is not a GraphQL call'] });
      exchange.sendJson(400, { errors: [{ message: 'Invalid JSON', extensions: { code: 'BAD_REQUEST' } }] });
      return;
    }
    exchange.sendJson(200, this.#run(call, exchange.operation));
  }

  #run({ entry, variables, operationName: asked }, operation) {
    if (entry.errors) {
      this.#journal.surprise('document', { host: hosts.shop, operation, messages: entry.errors.map(({ message }) => message) });
      return { errors: entry.errors };
    }
    if (entry.deprecated.length > 0) {
      this.#journal.surprise('deprecated', { host: hosts.shop, operation, messages: entry.deprecated.map(({ message }) => message) });
    }
    let context;
    try {
      context = contextOf(this.#schema, entry, asked, variables);
    } catch (error) {
      return { errors: [error] };
    }
    const result = execute({
      schema: this.#schema,
      document: entry.document,
      variableValues: variables,
      operationName: asked,
      contextValue: {
        catalog: this.#catalog,
        carts: this.#carts,
        checkoutUrl: this.#checkoutUrl,
        index: () => this.index,
        market: marketOf(context.country),
        language: context.language ?? 'EN',
      },
    });
    this.#note(result, operation);
    return result;
  }

  /** Variables of a wrong kind are the client's mistake; an error that a resolver did not raise on purpose is ours. */
  #note({ data, errors = [] }, operation) {
    if (errors.length === 0) return;
    const messages = (list) => list.map(({ message }) => message);
    if (data === undefined) this.#journal.surprise('document', { host: hosts.shop, operation, messages: messages(errors) });
    const ours = errors.filter(({ originalError }) => originalError && !(originalError instanceof GraphQLError));
    if (ours.length > 0) this.#journal.surprise('failure', { host: hosts.shop, operation, messages: messages(ours) });
  }
}

function readCall(text) {
  try {
    const { query, variables, operationName: asked } = JSON.parse(text);
    return typeof query === 'string' ? { query, variables: variables ?? {}, operationName: asked ?? undefined } : null;
  } catch {
    return null;
  }
}
