const kept = 200;

/** The last events the application reported; the control server shows them under /events. */
export class Tracker {
  events = [];

  add(event) {
    this.events.push({ time: new Date().toISOString(), event });
    if (this.events.length > kept) this.events.shift();
  }

  clear() {
    this.events = [];
  }
}

export const track = {
  path: '/track',
  methods: ['POST'],
  anonymous: true,
  handle({ input }, { tracker }) {
    const { publicKey, appToken, ...event } = input;
    tracker.add(event);
    return { code: 'OK' };
  },
};
