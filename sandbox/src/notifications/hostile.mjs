const good = { type: 'system', title: 'A title', body: 'A body', link: '/account' };

/** One notification for each thing that can be wrong with one. */
export function hostileNotifications() {
  return [
    { ...good, id: null, title: 'Without an identifier' },
    { ...good, id: '', title: 'With an empty identifier' },
    { ...good, id: 7, title: 'With a number for an identifier' },
    { ...good, title: null, body: 'Without a title' },
    { ...good, title: 'Without a body', body: null },
    { ...good, title: 'Without a date', date: null },
    { ...good, title: 'In the far future', date: '9999-12-31T23:59:59Z' },
    { ...good, title: 'In no calendar', date: '2026-02-31T25:61:61Z' },
    { ...good, title: 'Before all time', date: '0001-01-01T00:00:00Z' },
    { ...good, title: 'Of an unknown type', type: 'mood' },
    { ...good, title: 'Without a type', type: null },
    { ...good, title: '<b>Markup</b> & <img src="https://elsewhere.example/p.png">', body: '<a href="file:///etc/passwd">Tap to read</a> <script>1</script>' },
    { ...good, title: 'Lines\nand\ttabs\u0000\u202Eand a turn', body: 'one\ntwo\n\n\n\nthree\r\nfour' },
    { ...good, title: 'Far too long', body: 'long '.repeat(20480) },
    { ...good, title: 'Leads elsewhere', link: 'https://elsewhere.example/' },
    { ...good, title: 'Leads to a script', link: 'javascript:alert(1)' },
    { ...good, title: 'Leads to a file', link: 'file:///etc/passwd', image: 'file:///etc/passwd' },
    { ...good, title: 'Read or not', sourceUnread: 'perhaps' },
    { ...good, title: ['a', 'list'], body: { an: 'object' }, link: 9 },
    { ...good, title: 'Tap to see', body: 'Tap to pay. Do not tap to close! Tap to stay? Tap to go, Tap to keep.\nTap to end' },
  ];
}
