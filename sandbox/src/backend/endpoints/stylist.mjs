import { wait } from '../../server/faults.mjs';
import { weatherAt, weatherOfCity } from '../../stylist/weather.mjs';
import { BackendError } from '../errors.mjs';

const longestBody = 65536;
const mostAttachments = 20;

/** Opens the thread, or begins one: whoever comes without a token that is good is given a new one. */
export const openThread = stylistCall('/init', ({ input: { visitorToken, visitorId }, account }, { stylist }) => {
  if (!isOptionalText(visitorToken) || !isOptionalText(visitorId)) refuse('visitorToken and visitorId are texts');
  return stylist.open({ visitorToken, visitorId, account });
});

export const sendMessage = stylistCall('/message', ({ input, account, exchange }, { stylist }) => {
  const { visitorToken, body, lang, attachments = [] } = input;
  if (typeof body !== 'string' || body.trim() === '' || body.length > longestBody) refuse(`body is a text of at most ${longestBody} characters`);
  if (!isOptionalText(lang) || !isOptionalText(visitorToken)) refuse('lang and visitorToken are texts');
  if (!Array.isArray(attachments) || attachments.length > mostAttachments || !attachments.every(isCard)) refuse('attachments is a list of {handle, title, vendor, price, image}');
  const answer = stylist.take({ body, attachments, lang, visitorToken, account, input });
  if (!answer) throw new BackendError(404, 'NOT_FOUND', 'Nobody has this visitor token');
  if (stylist.loses()) exchange.drop();
  return answer;
});

export const readGuide = stylistCall('/guide-get', ({ input: { visitorId }, account }, { stylist }) => {
  const conversation = stylist.conversations.ofVisitor(visitorId, account);
  return { guide: { name: stylist.settings.values.guideName, title: 'Stylist' }, conversationId: conversation?.id ?? '' };
});

export const recommendSize = stylistCall('/size-reco', ({ input: { handle, visitorId }, account }, { stylist }) => {
  if (typeof handle !== 'string' || handle === '') refuse('handle is that of a piece');
  const recommendedSize = stylist.size({ handle, visitorId, account });
  if (recommendedSize === null) throw new BackendError(404, 'NOT_FOUND', 'There is no such piece');
  return { recommendedSize };
});

/** By coordinates, or by the name of a city. */
export const readWeather = stylistCall('/weather', ({ input: { latitude, longitude, city } }, { stylist }) => {
  const byCity = typeof city === 'string' && city.trim() !== '';
  if (!byCity && !(isWithin(latitude, 90) && isWithin(longitude, 180))) refuse('latitude and longitude, or a city, are wanted');
  const weather = byCity ? weatherOfCity(city) : weatherAt(latitude, longitude);
  if (!weather) throw new BackendError(404, 'NOT_FOUND', 'There is no such city');
  return { ...weather, ...stylist.settings.values.weather };
});

/** An endpoint that takes as long as the control port says. */
function stylistCall(path, handle) {
  return {
    path,
    methods: ['POST'],
    async handle(call, store) {
      const { delay } = store.stylist.settings.values;
      if (delay > 0) await wait(delay, call.exchange);
      return handle(call, store);
    },
  };
}

function isCard(card) {
  return card !== null && typeof card === 'object' && !Array.isArray(card);
}

function isOptionalText(value) {
  return value === undefined || value === null || (typeof value === 'string' && value.length <= 1000);
}

function isWithin(value, most) {
  return typeof value === 'number' && Math.abs(value) <= most;
}

function refuse(message) {
  throw new BackendError(400, 'BAD_INPUT', message);
}
