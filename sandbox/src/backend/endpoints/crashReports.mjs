import { BackendError } from '../errors.mjs';

const kept = 200;
const largest = 92160;
const forms = {
  platform: (value) => value === 'macos',
  appVersion: (value) => typeof value === 'string',
  build: (value) => typeof value === 'string' || Number.isInteger(value),
  os: (value) => typeof value === 'string',
  kind: (value) => typeof value === 'string' && value !== '',
  summary: (value) => typeof value === 'string',
  count: (value) => Number.isInteger(value) && value >= 1,
  visitorId: (value) => typeof value === 'string' && value !== '',
  device: isObject,
  payload: (value) => isObject(value) && Buffer.byteLength(JSON.stringify(value)) <= largest,
};

/** The last reports of runs that did not end well; the control server shows them under /crash-reports. */
export class CrashReports {
  reports = [];

  /** One that comes again, because the application never saw the answer, is the same visitor's about the same run. */
  add(report) {
    const { visitorId, kind, payload: { startedAt } } = report;
    const again = startedAt !== undefined && this.reports.some(({ report: known }) => (
      known.visitorId === visitorId && known.kind === kind && known.payload.startedAt === startedAt
    ));
    if (again) return;
    this.reports.push({ time: new Date().toISOString(), report });
    if (this.reports.length > kept) this.reports.shift();
  }

  clear() {
    this.reports = [];
  }
}

export function crashReportControls({ crashReports }) {
  return {
    'GET /crash-reports': () => crashReports.reports,
    'DELETE /crash-reports': () => crashReports.clear(),
  };
}

export const reportCrash = {
  path: '/app-version/crash-reports',
  methods: ['POST'],
  anonymous: true,
  handle({ input }, { crashReports }) {
    const { publicKey, ...report } = input;
    const wrong = [
      ...Object.keys(forms).filter((key) => !forms[key](report[key])),
      ...Object.keys(report).filter((key) => !Object.hasOwn(forms, key)),
    ];
    if (wrong.length > 0) throw new BackendError(400, 'BAD_INPUT', `not as a report has it: ${wrong.join(', ')}`);
    crashReports.add(report);
    return { code: 'OK' };
  },
};

function isObject(value) {
  return value !== null && typeof value === 'object' && !Array.isArray(value);
}
