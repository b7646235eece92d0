import {
  GraphQLError, Kind, NoDeprecatedCustomRule, Source, getDirectiveValues, getOperationAST, parse, specifiedRules, validate,
} from 'graphql';

const kept = 300;

/** Documents that were read and checked before: a client sends the same few again and again. */
export class Documents {
  #schema;
  #known = new Map();

  constructor(schema) {
    this.#schema = schema;
  }

  /** {document, operations} of a text the schema accepts, otherwise {errors, operations}. */
  read(text) {
    let entry = this.#known.get(text);
    if (!entry) {
      entry = this.#check(text);
      this.#known.set(text, entry);
      if (this.#known.size > kept) this.#known.delete(this.#known.keys().next().value);
    }
    return entry;
  }

  #check(text) {
    let document;
    try {
      document = parse(new Source(text, 'document'), { maxTokens: 50000 });
    } catch (error) {
      return { errors: [error], deprecated: [] };
    }
    const errors = validate(this.#schema, document, specifiedRules);
    const deprecated = errors.length > 0 ? [] : validate(this.#schema, document, [NoDeprecatedCustomRule]);
    return errors.length > 0 ? { document, errors, deprecated } : { document, errors: null, deprecated };
  }
}

/** The name of the operation that is to run, also when the document is not valid. */
export function operationName(entry, asked) {
  const operations = entry.document?.definitions.filter(({ kind }) => kind === Kind.OPERATION_DEFINITION) ?? [];
  const operation = operations.find(({ name }) => name?.value === asked) ?? operations[0];
  return operation?.name?.value ?? null;
}

/** Country and language of the operation's @inContext, where it has one. */
export function contextOf(schema, entry, asked, variables) {
  const operation = getOperationAST(entry.document, asked);
  if (!operation) throw new GraphQLError('An operation name is required');
  return getDirectiveValues(schema.getDirective('inContext'), operation, contextVariables(operation, variables)) ?? {};
}

/** A variable that was left out takes its default, which the directive would otherwise not see. */
function contextVariables(operation, variables) {
  const complete = { ...variables };
  for (const { variable, defaultValue } of operation.variableDefinitions ?? []) {
    if (!(variable.name.value in complete) && defaultValue?.kind === Kind.ENUM) complete[variable.name.value] = defaultValue.value;
  }
  return complete;
}
