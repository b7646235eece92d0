import { readFileSync } from 'node:fs';

import { buildSchema, isAbstractType, isObjectType } from 'graphql';

import { cartResolvers } from './cartResolvers.mjs';
import { collectionResolvers } from './collections.mjs';
import { localizationResolvers } from './localization.mjs';
import { productResolvers } from './products.mjs';
import { rootResolvers } from './root.mjs';

/** The platform's own schema with this store's answers behind it. */
export function loadSchema() {
  const file = new URL('../../schema/storefront-2025-04.graphql', import.meta.url);
  const schema = buildSchema(readFileSync(file, 'utf8'), { assumeValidSDL: true, noLocation: true });
  for (const resolvers of [rootResolvers, productResolvers, collectionResolvers, localizationResolvers, cartResolvers]) {
    attach(schema, resolvers);
  }
  for (const type of Object.values(schema.getTypeMap())) {
    if (isAbstractType(type)) type.resolveType = ({ __typename }) => __typename;
  }
  return schema;
}

/** A resolver for something the schema does not have is a mistake of ours, so it stops the start. */
function attach(schema, resolvers) {
  for (const [typeName, fields] of Object.entries(resolvers)) {
    const type = schema.getType(typeName);
    if (!isObjectType(type)) throw new Error(`the schema has no object type ${typeName}`);
    for (const [fieldName, resolve] of Object.entries(fields)) {
      const field = type.getFields()[fieldName];
      if (!field) throw new Error(`the schema has no field ${typeName}.${fieldName}`);
      field.resolve = resolve;
    }
  }
}
