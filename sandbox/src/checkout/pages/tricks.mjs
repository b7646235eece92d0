import { scriptValue } from '../layout.mjs';

/**
 * What a page of checkout must not get away with. Each trick is a list of attempts, made one after the other without
 * waiting for a click; attempt(link) below presses a link that is not on the page.
 */
const tricks = {
  leave: ({ target }) => [`location.assign(${scriptValue(target)})`],
  windows: ({ target }) => [
    `open(${scriptValue(target)}, '_blank')`,
    `open(${scriptValue(target)}, 'named', 'popup,width=300,height=200')`,
    `for (let count = 0; count < 20; count += 1) open('about:blank')`,
    `open('javascript:alert(1)')`,
    `open('data:text/html,<h1>taken</h1>')`,
    `open('file:///etc/hostname')`,
    `link({ href: ${scriptValue(target)}, target: '_blank' })`,
  ],
  addresses: () => [
    `location.assign('file:///etc/hostname')`,
    `location.assign('data:text/html,<title>taken</title><h1>taken</h1>')`,
    `location.assign("javascript:document.title = 'taken by a script'; void 0")`,
    `location.assign(URL.createObjectURL(new Blob(['<h1>taken</h1>'], { type: 'text/html' })))`,
    `location.assign('loomstreet://cart')`,
    `location.assign('mailto:someone@example.com')`,
    `link({ href: 'file:///etc/hostname' })`,
    `link({ href: 'data:text/html,<h1>taken</h1>' })`,
    `location.assign('http://' + location.host + '/checkouts/plain')`,
    `frame('file:///etc/hostname')`,
    `frame(${scriptValue('data:text/html,<script>top.location = "https://example.com/"</script>')})`,
  ],
  download: () => [
    `link({ href: '/checkouts/assets/receipt.bin', download: 'receipt.desktop' })`,
    `frame('/checkouts/assets/receipt.bin')`,
    `location.assign('/checkouts/assets/receipt.bin')`,
  ],
  questions: () => [
    `Notification.requestPermission()`,
    `navigator.geolocation.getCurrentPosition(() => {}, () => {})`,
    `navigator.mediaDevices?.getUserMedia({ audio: true, video: true }).catch(() => {})`,
    `navigator.clipboard?.readText().catch(() => {})`,
    `document.documentElement.requestFullscreen().catch(() => {})`,
    `print()`,
    `addEventListener('beforeunload', (event) => { event.preventDefault(); event.returnValue = 'Stay!'; })`,
    `alert('An alert')`,
    `prompt('Your password?', '')`,
  ],
};

export const trickNames = Object.keys(tricks);

/** The script that tries them; data-tricks of the document is "done" when the last one was made. */
export function tricksScript(names, settings) {
  if (names.length === 0) return null;
  const attempts = names.flatMap((name) => tricks[name](settings));
  return `addEventListener('load', async () => {
  const link = (properties) => {
    const anchor = Object.assign(document.createElement('a'), properties);
    document.body.append(anchor);
    anchor.click();
    anchor.remove();
  };
  const frame = (src) => document.body.append(Object.assign(document.createElement('iframe'), { src, width: 1, height: 1 }));
  const attempts = [
${attempts.map((attempt) => `    () => { ${attempt} },`).join('\n')}
  ];
  for (const attempt of attempts) {
    try {
      attempt();
    } catch (error) {
      console.info(String(error));
    }
    await new Promise((resolve) => { setTimeout(resolve, 100); });
  }
  document.documentElement.dataset.tricks = 'done';
});`;
}
