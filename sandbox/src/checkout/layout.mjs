import { html } from '../web/html.mjs';

/** A whole document of checkout or of the bank. script is our own text and runs as it stands. */
export function layout({ title, body, script = null, language = 'en', rightToLeft = false, plain = false }) {
  const markup = html`<html lang="${language}" dir="${rightToLeft ? 'rtl' : 'ltr'}">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta name="robots" content="noindex">
<meta name="referrer" content="strict-origin">
<title>${title}</title>
<link rel="icon" href="/favicon.ico">
<link rel="stylesheet" href="/checkouts/assets/checkout.css">
</head>
<body class="${plain ? 'plain' : ''}">
${body}
`;
  return `<!doctype html>\n${markup}${script === null ? '' : `<script>\n${script}\n</script>\n`}</body>\n</html>\n`;
}

/** A value as a script may hold it, whatever it contains. */
export function scriptValue(value) {
  return JSON.stringify(value).replace(/</g, '\\u003c').replace(/\u2028/g, '\\u2028').replace(/\u2029/g, '\\u2029');
}
