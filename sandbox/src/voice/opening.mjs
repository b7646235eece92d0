/** Who calls: the first frame of a line, whatever it has of what it should have. null where it is no object at all. */
export function readOpening(text) {
  let raw;
  try {
    raw = JSON.parse(text);
  } catch {
    return null;
  }
  if (!isObject(raw)) return null;
  const textOf = (name) => (typeof raw[name] === 'string' ? raw[name] : '');
  const listOf = (name) => (Array.isArray(raw[name]) ? raw[name].filter((item) => isObject(item) && typeof item.title === 'string') : []);
  return {
    raw, visitorToken: textOf('visitorToken'), appToken: textOf('appToken'), lang: textOf('lang'), city: textOf('city'),
    weather: isObject(raw.weather) ? raw.weather : null, closet: listOf('closet'), wishlist: listOf('wishlist'), cart: listOf('cart'),
  };
}

function isObject(value) {
  return value !== null && typeof value === 'object' && !Array.isArray(value);
}
