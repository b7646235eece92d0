import { createServer } from 'node:http';

/**
 * The CONNECT proxy in front of the TLS server. A tunnel to one of the store's names becomes a connection of that
 * server; every other host is refused and recorded, so that nothing reaches the network unnoticed.
 */
export function createProxy({ secureServer, hostNames, journal }) {
  const tunnels = new Set();
  const proxy = createServer((req, res) => {
    journal.surprise('host', { method: req.method, host: req.headers.host ?? '' });
    res.writeHead(502, { 'content-type': 'text/plain' });
    res.end('This proxy only opens tunnels to the sandbox store.\n');
  });

  proxy.on('connect', (req, socket, head) => {
    socket.on('error', () => socket.destroy());
    const [, host, port] = /^(.*):(\d+)$/.exec(req.url) ?? [];
    if (port !== '443' || !hostNames.includes(host.toLowerCase())) {
      journal.surprise('host', { method: 'CONNECT', host: req.url });
      socket.end('HTTP/1.1 502 Bad Gateway\r\ncontent-length: 0\r\nconnection: close\r\n\r\n');
      return;
    }
    tunnels.add(socket);
    socket.on('close', () => tunnels.delete(socket));
    socket.setNoDelay(true);
    socket.write('HTTP/1.1 200 Connection established\r\n\r\n');
    if (head.length > 0) socket.unshift(head);
    secureServer.emit('connection', socket);
  });

  proxy.endTunnels = () => tunnels.forEach((socket) => socket.destroy());
  return proxy;
}
