import { BadRequest } from '../server/exchange.mjs';

/** Reads multipart/form-data: {fields: {name: text}, files: {name: {fileName, type, bytes}}}. */
export function parseMultipart(bytes, contentType) {
  const boundary = /boundary=(?:"([^"]+)"|([^;\s]+))/i.exec(contentType)?.slice(1).find(Boolean);
  if (!boundary) throw new BadRequest('the multipart body names no boundary');
  const fields = {};
  const files = {};
  const delimiter = Buffer.from(`--${boundary}`);
  let from = bytes.indexOf(delimiter);
  while (from >= 0) {
    from += delimiter.length;
    if (bytes.toString('latin1', from, from + 2) === '--') return { fields, files };
    const headEnd = bytes.indexOf('\r\n\r\n', from);
    const next = bytes.indexOf(delimiter, from);
    if (headEnd < 0 || next < headEnd) break;
    addPart(bytes.toString('utf8', from, headEnd), bytes.subarray(headEnd + 4, next - 2), fields, files);
    from = next;
  }
  throw new BadRequest('the multipart body is cut off');
}

function addPart(head, content, fields, files) {
  const name = /\bname="([^"]*)"/i.exec(head)?.[1];
  if (name === undefined) throw new BadRequest('a part of the multipart body has no name');
  const fileName = /\bfilename="([^"]*)"/i.exec(head)?.[1];
  if (fileName === undefined) fields[name] = content.toString('utf8');
  else files[name] = { fileName, type: /^content-type:\s*([^\r\n]+)/im.exec(head)?.[1] ?? 'application/octet-stream', bytes: content };
}
