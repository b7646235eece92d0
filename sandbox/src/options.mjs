import { homedir } from 'node:os';
import { join, resolve } from 'node:path';
import { parseArgs } from 'node:util';

export const helpText = `Usage: loomstreet-sandbox [options]

A small but complete fashion store on this machine, reached through a CONNECT proxy on loopback.

  --pieces N          pieces in the catalog (default 420)
  --seed TEXT         what the catalog is generated from (default "loomstreet")
  --state-dir DIR     where certificates and rendered pictures are kept
                      (default: loomstreet-sandbox in $XDG_CACHE_HOME or ~/.cache)
  --port N            port of the proxy, 0 for any free one (default 0)
  --control-port N    port of the control server, 0 for any free one (default 0)
  --ready-file FILE   written when the store is ready, with what an application needs to know
  --parent-pid PID    end when the process PID is gone
  --voice-script TEXT what shoppers say in calls, a line for each time they speak, with "|" between them
                      (default: $LOOMSTREET_VOICE_SCRIPT, else a short conversation)
  --verbose           log every request to standard error
  --help              this text

When ready, one line of JSON with the same content as the ready file goes to standard output.
`;

export class OptionError extends Error {}

export function defaultStateDir(environment = process.env) {
  return join(environment.XDG_CACHE_HOME || join(homedir(), '.cache'), 'loomstreet-sandbox');
}

export function readOptions(args, environment = process.env) {
  let values;
  try {
    ({ values } = parseArgs({
      args,
      options: {
        pieces: { type: 'string', default: '420' },
        seed: { type: 'string', default: 'loomstreet' },
        'state-dir': { type: 'string' },
        port: { type: 'string', default: '0' },
        'control-port': { type: 'string', default: '0' },
        'ready-file': { type: 'string' },
        'parent-pid': { type: 'string' },
        'voice-script': { type: 'string', default: environment.LOOMSTREET_VOICE_SCRIPT ?? '' },
        verbose: { type: 'boolean', default: false },
        help: { type: 'boolean', default: false },
      },
    }));
  } catch (error) {
    throw new OptionError(error.message);
  }
  return {
    help: values.help,
    verbose: values.verbose,
    seed: values.seed,
    pieces: wholeNumber('--pieces', values.pieces, 50, 20000),
    port: wholeNumber('--port', values.port, 0, 65535),
    controlPort: wholeNumber('--control-port', values['control-port'], 0, 65535),
    parentPid: values['parent-pid'] === undefined ? null : wholeNumber('--parent-pid', values['parent-pid'], 1, 2 ** 31),
    stateDir: resolve(values['state-dir'] ?? defaultStateDir()),
    voiceScript: values['voice-script'] === '' ? null : values['voice-script'].split('|').map((line) => line.trim()).filter(Boolean),
    readyFile: values['ready-file'] === undefined ? null : resolve(values['ready-file']),
  };
}

function wholeNumber(name, text, low, high) {
  const value = /^\d+$/.test(text) ? Number(text) : NaN;
  if (!(value >= low && value <= high)) {
    throw new OptionError(`${name} takes a whole number from ${low} to ${high}, not "${text}"`);
  }
  return value;
}
