import { alertKinds } from '../../orders/alerts.mjs';
import { BackendError } from '../errors.mjs';

export const listAlerts = {
  path: '/alerts',
  methods: ['POST'],
  customer: true,
  handle({ account }, { alerts }) {
    return { alerts: alerts.of(account) };
  },
};

export const addAlert = {
  path: '/alerts-add',
  methods: ['POST'],
  customer: true,
  handle({ input: { kind, handle, variantId }, account }, { alerts }) {
    if (!alertKinds.includes(kind) || typeof handle !== 'string' || !['string', 'undefined'].includes(typeof variantId)) {
      throw new BackendError(400, 'BAD_INPUT', `kind is one of ${alertKinds.join(', ')}, handle that of a piece`);
    }
    const alert = alerts.add(account, { kind, handle, variantId });
    if (!alert) throw new BackendError(404, 'NOT_FOUND', 'There is no such piece or variant');
    return { alert };
  },
};

export const removeAlert = {
  path: '/alerts-remove',
  methods: ['POST'],
  customer: true,
  handle({ input: { id }, account }, { alerts }) {
    if (!alerts.remove(account, id)) throw new BackendError(404, 'NOT_FOUND', 'There is no such alert');
    return {};
  },
};
