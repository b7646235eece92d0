import { BadRequest } from '../server/exchange.mjs';
import { hostileFrames, hostileNames } from './hostile.mjs';

const endings = ['ended', 'ended-twice', 'normal', 'close', 'drop', 'mid-frame', 'silence'];
const isObject = (value) => value !== null && typeof value === 'object' && !Array.isArray(value);

/**
 * What the control port can ask of the voice line. Everything but the settings is about the call under way, the last one
 * that was placed where there are several.
 *
 *     curl "$control/voice"                        # settings, and what came and went in the last calls
 *     curl "$control/voice" -d '{"script":["Show me a coat.","Put it in my bag."],"greets":false}'
 *     curl "$control/voice" -d '{"answer":"busy","times":1}'
 *     curl "$control/voice/hear" -d '{"text":"Open my wishlist."}'       # said by the shopper, without a microphone
 *     curl "$control/voice/speak" -d '{"says":"Look at this.","shows":["odile-tiered-dress"]}'
 *     curl "$control/voice/send" -d '{"event":{"type":"error","code":"hiccup"}}'
 *     curl "$control/voice/end" -d '{"how":"drop"}'
 *     curl "$control/voice/audio" >heard.wav       # what the microphone sent
 */
export function voiceControls({ calls }) {
  const state = () => ({ ...calls.settings.values, calls: calls.all.map(({ id, call }) => ({ id, ...call.facts })) });
  const current = (wantsTalk) => {
    const found = calls.open.findLast(({ call }) => !wantsTalk || call.state === 'talking');
    if (!found) throw new BadRequest(wantsTalk ? 'nobody talks to the stylist' : 'nobody calls', 404);
    return found.call;
  };
  const read = async (exchange) => {
    const wanted = await exchange.json();
    if (!isObject(wanted)) throw new BadRequest('that is a JSON object');
    return wanted;
  };

  return {
    'GET /voice': state,
    'POST /voice': async (exchange) => {
      calls.settings.change(await exchange.json());
      return state();
    },
    'DELETE /voice': () => {
      calls.settings.clear();
      return state();
    },
    'POST /voice/hear': async (exchange) => {
      const { text } = await read(exchange);
      if (typeof text !== 'string' || text.trim() === '') throw new BadRequest('text is what the shopper says');
      current(true).hear(text);
    },
    'POST /voice/speak': async (exchange) => {
      const { says, shows = [], events = [], ends = false } = await read(exchange);
      if (typeof says !== 'string' || ![shows, events].every(Array.isArray)) throw new BadRequest('says is a text, shows a list of handles, events a list of events');
      current(true).speak({ says, shows, events, ends });
    },
    'POST /voice/send': async (exchange) => {
      framesOf(await read(exchange)).forEach((frame) => current(false).send(frame));
    },
    'POST /voice/end': async (exchange) => {
      const { how, code } = await read(exchange);
      if (!endings.includes(how)) throw new BadRequest(`how is one of ${endings.join(', ')}`);
      if (code !== undefined && !Number.isInteger(code)) throw new BadRequest('code is that of a closing web socket');
      current(false).end(how, code);
    },
    'GET /voice/audio': (exchange) => {
      const id = exchange.query.get('call');
      const found = calls.all.findLast((one) => id === null || one.id === id);
      if (!found) throw new BadRequest('there was no such call', 404);
      exchange.reply(200, { 'content-type': 'audio/wav' }, found.call.received.wave);
    },
  };
}

/** Events, texts and bytes in the order in which they are sent. */
function framesOf({ event, events = [], text, binary, hostile = [] }) {
  if (!Array.isArray(hostile) || !hostile.every((name) => hostileNames.includes(name))) throw new BadRequest(`hostile is a list of ${hostileNames.join(', ')}`);
  if (!Array.isArray(events) || (text !== undefined && typeof text !== 'string') || (binary !== undefined && typeof binary !== 'string')) {
    throw new BadRequest('events is a list, text a text, binary a text in base64');
  }
  return [
    ...(event === undefined ? [] : [event]), ...events, ...(text === undefined ? [] : [text]),
    ...(binary === undefined ? [] : [Buffer.from(binary, 'base64')]), ...hostile.flatMap(hostileFrames),
  ];
}
