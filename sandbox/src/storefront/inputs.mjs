import { GraphQLError } from 'graphql';

const most = 250;

/** A list that is too long fails the whole field. */
export function requireSize(list) {
  if (list.length <= most) return;
  throw new GraphQLError(`The input array size of ${list.length} is greater than the maximum allowed of ${most}.`, {
    extensions: { code: 'MAX_INPUT_SIZE_EXCEEDED' },
  });
}

/** So does an identifier that is none; one of something unknown does not. */
export function requireGlobalId(id) {
  if (/^gid:\/\/shopify\/[A-Za-z]+\/[\w-]+/.test(id)) return;
  throw new GraphQLError(`Invalid global id '${id}'`, { extensions: { code: 'BAD_REQUEST' } });
}
