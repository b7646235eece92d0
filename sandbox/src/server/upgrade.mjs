import { ServerResponse } from 'node:http';

import { Exchange } from './exchange.mjs';

/**
 * A request to go on as a web socket. Until somebody takes it, it is an exchange like any other, to which faults can happen;
 * it ends with its connection.
 */
export class Upgrade extends Exchange {
  #req;
  #res;
  #socket;
  #head;
  #isTaken = false;

  constructor(req, socket, head) {
    const res = new ServerResponse(req);
    res.shouldKeepAlive = false;
    res.assignSocket(socket);
    res.on('finish', () => socket.end());
    socket.on('error', () => socket.destroy());
    super(req, res);
    this.#req = req;
    this.#res = res;
    this.#socket = socket;
    this.#head = head;
  }

  get status() {
    return this.#isTaken ? 101 : super.status;
  }

  get finished() {
    return this.#isTaken || super.finished;
  }

  /** What a web socket server goes on with; nothing can be answered here any more. */
  take() {
    this.#isTaken = true;
    this.#res.detachSocket(this.#socket);
    return { req: this.#req, socket: this.#socket, head: this.#head };
  }

  onClose(listener) {
    this.#socket.once('close', listener);
  }
}
