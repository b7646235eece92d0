import { readFileSync } from 'node:fs';

import { Validator } from '@seriousme/openapi-schema-validator';
import Ajv from 'ajv/dist/2020.js';
import addFormats from 'ajv-formats';
import { parse } from 'yaml';

const file = new URL('../../../docs/backend-api.yaml', import.meta.url);

/** docs/backend-api.yaml: whether it is a description at all, its operations, and whether a value is what it says. */
export class Description {
  #ajv = new Ajv({ allErrors: true, strict: true, allowUnionTypes: true });
  #compiled = new Map();

  static async read() {
    const validator = new Validator();
    const { valid, errors } = await validator.validate(parse(readFileSync(file, 'utf8')));
    return new Description(valid ? validator.resolveRefs() : null, errors);
  }

  constructor(whole, errors) {
    addFormats(this.#ajv);
    this.errors = errors;
    this.whole = whole;
  }

  /** Every {path, method, requests, responses}; a path with a choice in it comes once for each of its values. */
  get operations() {
    return Object.entries(this.whole.paths).flatMap(([path, methods]) => Object.entries(methods).flatMap(([method, operation]) => (
      expand(path, operation.parameters).map((own) => ({ path: own, method: method.toUpperCase(), ...this.#parts(operation) }))
    )));
  }

  #parts({ requestBody, parameters = [], responses }) {
    const [[type, body] = []] = Object.entries(requestBody?.content ?? {});
    return { type, request: body?.schema, requests: valuesOf(body?.examples), parameters: parameters.filter((parameter) => parameter.in === 'query'), responses };
  }

  /** What is wrong with a value; members that are not described are wrong in what the store sends. */
  problems(schema, value) {
    if (!this.#compiled.has(schema)) this.#compiled.set(schema, this.#ajv.compile(closed(schema)));
    const check = this.#compiled.get(schema);
    return check(value) ? [] : check.errors.map(({ instancePath, message, params }) => `${instancePath} ${message} ${JSON.stringify(params)}`);
  }
}

export function valuesOf(examples = {}) {
  return Object.entries(examples).map(([name, { value }]) => [name, value]);
}

function expand(path, parameters = []) {
  const [, name] = /\{(\w+)\}/.exec(path) ?? [];
  if (!name) return [path];
  return parameters.find((parameter) => parameter.name === name).schema.enum.map((value) => path.replace(`{${name}}`, value));
}

function closed(schema) {
  if (Array.isArray(schema)) return schema.map(closed);
  if (schema === null || typeof schema !== 'object') return schema;
  const copy = Object.fromEntries(Object.entries(schema).map(([key, value]) => [key, closed(value)]));
  return copy.type === 'object' ? { additionalProperties: false, ...copy } : copy;
}
