/** A form with texts and files ({name, type, bytes}), as a browser sends one: {type, body}. */
export function multipart(fields, files) {
  const boundary = 'lst-6B1D1F2E-0000-4000-8000-1A2B3C4D5E6F';
  const parts = Object.entries(fields).filter(([, value]) => value !== undefined)
    .map(([name, value]) => Buffer.from(`--${boundary}\r\nContent-Disposition: form-data; name="${name}"\r\n\r\n${value}\r\n`));
  for (const [name, { name: fileName, type, bytes }] of Object.entries(files)) {
    const quoted = fileName.replaceAll('"', '%22');
    parts.push(Buffer.from(`--${boundary}\r\nContent-Disposition: form-data; name="${name}"; filename="${quoted}"\r\nContent-Type: ${type}\r\n\r\n`), bytes, Buffer.from('\r\n'));
  }
  return { type: `multipart/form-data; boundary=${boundary}`, body: Buffer.concat([...parts, Buffer.from(`--${boundary}--\r\n`)]) };
}
