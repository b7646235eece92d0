import { tones } from './tones.mjs';
import { bytesOf, speechEvent } from './sound.mjs';

const markup = '<b onclick="alert(1)">Bold</b> & <img src=x onerror=alert(2)> [link](javascript:alert(3)) %1 {0}';
const control = '\u0000\u0007\u001b[31m\u202egnp.sserd\u202c \u2066left\u2069 \u200f\u200b\ufeff\r\n\u2028next\u0085';
const tenMillion = 10_000_000;
const speech = () => tones('Hello there');
const b64 = (bytes) => ({ type: 'tts', b64: bytes.toString('base64') });
const nav = (kind, rest = {}) => ({ type: 'nav', kind, ...rest });
const cart = (variantId) => ({ type: 'cart', variantId, title: 'A stranger' });
const piece = (more = {}) => ({ handle: 'odile-tiered-dress', title: 'Odile tiered dress', image: '', price: 312, ...more });

/** Frames that a service in good health never sends: events, texts and bytes. */
const ways = {
  unknown: () => [{ type: 'applause' }, { type: 7 }, { type: null }, { type: 'READY' }, {}],
  types: () => [
    { type: 'asr', text: 7, final: 'yes' }, { type: 'asr', final: true }, { type: 'asr', text: ' \n ', final: true }, { type: 'tts', b64: 7 }, { type: 'tts' }, { type: 'chat', text: {} }, { type: 'chat_partial' },
    { type: 'products', products: 'none' }, { type: 'products', products: [null, 7, {}, 'x', { handle: 7, title: null }, [], piece({ price: { amount: 1 }, image: 7 })] }, { type: 'products' },
    { type: 'cart' }, { type: 'cart', variantId: {} }, { type: 'nav' }, { type: 'nav', kind: 7, handle: [] }, { type: 'session', guideName: 7 }, { type: 'session' },
  ],
  errors: () => [{ type: 'error' }, { type: 'error', code: 7 }, { type: 'error', code: 'BUSY?', message: markup }],
  notJson: () => ['hello', '', '[', '[]', 'null', '7', '"ready"', '{"type":"chat","text":"', '\ufeff{"type":"ready"}'],
  binary: () => [Buffer.from([0, 255, 254]), Buffer.from('{"type":"ended"}'), Buffer.alloc(0)],
  deep: () => ['['.repeat(100000), `{"type":"chat","text":${'['.repeat(50000)}${']'.repeat(50000)}}`],
  base64: () => [{ type: 'tts', b64: '!!not base64!!' }, { type: 'tts', b64: 'AAA' }, { type: 'tts', b64: '====' }, { type: 'tts', b64: '' }],
  odd: () => [b64(bytesOf(speech()).subarray(0, 4 * 2400 + 3)), b64(Buffer.from([1]))],
  noise: () => [speechEvent(Float32Array.from({ length: 2400 }, (_, at) => [NaN, Infinity, -Infinity, 1e30, -1e30, 0.1][at % 6]))],
  hugeSpeech: () => [b64(Buffer.alloc((tenMillion * 3) / 4 - 2))],
  hugeText: () => [{ type: 'chat', text: 'long '.repeat(tenMillion / 5) }],
  manyProducts: () => [{ type: 'products', products: Array.from({ length: 5000 }, (_, at) => piece({ handle: `never-sold-${at}` })) }],
  prices: () => [{ type: 'products', products: ['1,299.00', 'Price on request', null, -1, '', 1e300].map((price) => piece({ price })) }],
  markup: () => [{ type: 'asr', text: markup, final: true }, { type: 'chat', text: markup }, { type: 'products', products: [piece({ title: markup, price: markup })] }, { type: 'session', guideName: markup }],
  control: () => [{ type: 'asr', text: control, final: true }, { type: 'chat', text: control }, { type: 'products', products: [piece({ title: control })] }, { type: 'session', guideName: control }],
  nav: () => [
    nav('checkout'), nav(''), nav('product'), nav('product', { handle: '../../etc/passwd' }), nav('product', { handle: 'a/b?c#d' }), nav('collection', { handle: '' }), nav('product', { handle: 'x'.repeat(100000) }),
    nav('search', { path: 'javascript:alert(1)' }), nav('search', { path: 'file:///etc/passwd' }), nav('wishlist', { path: 'https://evil.example/' }), nav('', { path: '//evil.example/products/x' }),
    nav('brands', { path: '/../../admin' }), nav('page', { path: 'https://www.loomstreet.example@evil.example/' }), nav('orders ', {}),
  ],
  cart: () => [
    'gid://shopify/Product/1', 'gid://evil/ProductVariant/46100000000101', 'gid://shopify/ProductVariant/../1', '1; DROP TABLE carts', '', null, -1, 0, 1.5, 1e21, '99999999999999', 'gid://shopify/ProductVariant/99999999999999',
  ].map(cart),
  repeated: () => [{ type: 'ready' }, { type: 'ready' }, { type: 'session', guideName: 'Mira' }, { type: 'session', guideName: 'Mira' }],
};

export const hostileNames = Object.keys(ways);

export const hostileFrames = (name) => ways[name]();
