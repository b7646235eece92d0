import { fileLimit } from '../../support/files.mjs';
import { BackendError } from '../errors.mjs';

const longestText = 10000;

/** The conversation of a token, or a new one without. */
export const openSupport = {
  path: '/support-init',
  methods: ['POST'],
  handle({ input, account }, { conversations }) {
    const conversation = input.visitorToken === undefined ? conversations.open(account) : conversationOf(input, account, conversations);
    return {
      visitorToken: conversation.token, messages: conversations.since(conversation), unreadCount: conversations.unreadOf(conversation),
    };
  },
};

export const writeSupport = {
  path: '/support-message',
  methods: ['POST'],
  handle({ input, account }, { conversations }) {
    const conversation = conversationOf(input, account, conversations);
    const { clientID } = input;
    const body = textOf(input.body);
    if (body === '' || !isName(clientID)) refuse('body is a text, clientID tells it from others');
    return { messages: conversations.write(conversation, { body, clientID, account }) };
  },
};

/** A file with or without words. A form carries neither key nor session: whose conversation it is, its token says. */
export const uploadSupport = {
  path: '/support-upload',
  methods: ['POST'],
  keyless: true,
  anonymous: true,
  async handle({ input, files: { file } }, { conversations, supportFiles }) {
    const conversation = conversationOf(input, null, conversations);
    const body = textOf(input.body ?? '');
    if (!file || !isName(input.clientID)) refuse('file is a picture or a PDF, clientID tells it from others');
    if (file.bytes.length > fileLimit) throw new BackendError(413, 'TOO_LARGE', `a file has at most ${fileLimit} bytes`);
    const attachment = await supportFiles.keep(file);
    if (!attachment) throw new BackendError(415, 'UNSUPPORTED_TYPE', 'a file is a picture or a PDF');
    return { messages: conversations.write(conversation, { body, clientID: input.clientID, attachments: [attachment], account: null }) };
  },
};

export const supportReplies = {
  path: '/support-replies',
  methods: ['POST'],
  handle({ input, account }, { conversations }) {
    const conversation = conversationOf(input, account, conversations);
    return { messages: conversations.since(conversation, input.after), unreadCount: conversations.unreadOf(conversation) };
  },
};

export const readSupport = {
  path: '/support-read',
  methods: ['POST'],
  handle({ input, account }, { conversations }) {
    const conversation = conversationOf(input, account, conversations);
    if (!isName(input.upTo)) refuse('upTo is the identifier of a message');
    conversations.markRead(conversation, input.upTo);
    return {};
  },
};

function conversationOf({ visitorToken }, account, conversations) {
  const found = typeof visitorToken === 'string' ? conversations.find(visitorToken, account) : null;
  if (!found) throw new BackendError(404, 'NOT_FOUND', 'There is no such conversation');
  return found;
}

function textOf(value) {
  if (typeof value !== 'string' || value.length > longestText) refuse(`body is a text of at most ${longestText} characters`);
  return value.trim();
}

function isName(value) {
  return typeof value === 'string' && value !== '' && value.length <= 200;
}

function refuse(message) {
  throw new BackendError(400, 'BAD_INPUT', message);
}
