import { html } from '../web/html.mjs';

const styles = `
:root { color-scheme: light; }
* { box-sizing: border-box; }
body { margin: 0; min-height: 100vh; display: grid; place-items: center; padding: 24px; background: #EEF0F3; color: #1B1F24; font: 15px/22px "Inter", "Noto Sans", system-ui, sans-serif; }
main { width: 100%; max-width: 400px; padding: 36px 36px 28px; background: #FFF; border-radius: 16px; box-shadow: 0 1px 2px #0001, 0 12px 40px #00000014; }
.mark { width: 48px; height: 48px; margin: 0 0 20px; border-radius: 14px; display: grid; place-items: center; background: var(--mark); color: #FFF; font-size: 22px; font-weight: 600; }
h1 { margin: 0 0 6px; font-size: 22px; line-height: 28px; font-weight: 600; }
p { margin: 0 0 24px; color: #57606A; overflow-wrap: anywhere; }
button { display: flex; align-items: center; gap: 12px; width: 100%; min-height: 52px; margin-top: 10px; padding: 8px 14px; border: 1px solid #D0D7DE; border-radius: 12px; background: #FFF; color: inherit; font: inherit; font-weight: 500; text-align: start; cursor: pointer; }
button:hover { background: #F6F8FA; }
button:focus-visible { outline: 2px solid var(--mark); outline-offset: 2px; }
button i { flex: none; width: 32px; height: 32px; border-radius: 50%; display: grid; place-items: center; background: #E6EAEF; color: #424A53; font-style: normal; font-size: 13px; font-weight: 600; }
button small { display: block; color: #57606A; font-weight: 400; }
button.cancel { justify-content: center; border-color: transparent; color: #57606A; }
.note { margin: 20px 0 0; font-size: 13px; line-height: 18px; text-align: center; }
`;

const marks = { apple: '#30343B', google: '#2B6A4D', facebook: '#2F5597' };

/** The page of a provider as this store imagines it: who somebody is there, and whether the store may know. */
export function providerPage({ provider, name, query, people }) {
  return `<!doctype html>\n${html`<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta name="robots" content="noindex">
<title>Sign in with ${name}</title>
<link rel="icon" href="/favicon.ico">
<style>:root { --mark: ${marks[provider]}; }${styles}</style>
</head>
<body>
<main>
<div class="mark" aria-hidden="true">${name[0]}</div>
<h1>Sign in with ${name}</h1>
<p>LOOMSTREET will learn your name and your email address.</p>
<form method="get">
${Object.entries(query).map(([key, value]) => html`<input type="hidden" name="${key}" value="${value}">`)}
${people.map(({ choice, label, detail }) => html`<button id="${choice}" name="choice" value="${choice}"><i aria-hidden="true">${detail[0].toUpperCase()}</i><span>${label}<small>${detail}</small></span></button>`)}
<button class="cancel" id="cancel" name="choice" value="cancel">Cancel</button>
</form>
<p class="note">A page of the sandbox: nobody at ${name} is asked.</p>
</main>
</body>
</html>
`}`;
}
