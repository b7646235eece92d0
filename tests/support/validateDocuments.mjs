// Checks every document of the program named on the command line against the Storefront's official schema: its
// syntax, every rule of the language, that it uses nothing deprecated, and that its variables have values of their
// types. The second argument is how many documents there are at least. Prints what is wrong.
import { execFileSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { createRequire } from 'node:module';

const sandbox = new URL('../../sandbox/', import.meta.url);
const { NoDeprecatedCustomRule, buildSchema, getOperationAST, getVariableValues, parse, specifiedRules, validate } =
  createRequire(new URL('package.json', sandbox))('graphql');

const schema = buildSchema(readFileSync(new URL('schema/storefront-2025-04.graphql', sandbox), 'utf8'));
const { documents, countries } = JSON.parse(
  execFileSync(process.argv[2], { encoding: 'utf8', maxBuffer: 64 * 1024 * 1024 }));
const faults = [];

for (const { name, text, variables } of documents) {
  try {
    const document = parse(text);
    const operation = getOperationAST(document, name);
    if (!operation) throw new Error('no operation of this name');
    const { errors = [] } = getVariableValues(schema, operation.variableDefinitions ?? [], variables);
    for (const error of [...validate(schema, document, [...specifiedRules, NoDeprecatedCustomRule]), ...errors])
      faults.push(`${name}: ${error.message}`);
    for (const variable of Object.keys(variables)) {
      if (!text.includes(`$${variable}:`)) faults.push(`${name}: no variable ${variable}`);
    }
  } catch (error) {
    faults.push(`${name}: ${error.message}`);
  }
}

if (countries) {
  const known = schema.getType('CountryCode').getValues().map(({ name }) => name).sort();
  if (JSON.stringify(known) !== JSON.stringify(countries)) faults.push(`countries: ${known} are not ${countries}`);
}

if (!(documents.length >= Number(process.argv[3]))) faults.push(`only ${documents.length} documents`);
for (const fault of faults) console.error(fault);
process.exit(faults.length ? 1 : 0);
