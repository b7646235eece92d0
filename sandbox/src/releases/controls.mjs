/** What the control port can ask of releases. */
export function releaseControls({ releases }) {
  const state = () => ({ ...releases.values, announced: releases.record() ?? null, asked: releases.asked, downloads: releases.downloads });
  return {
    'GET /release': state,
    'POST /release': async (exchange) => {
      releases.change(await exchange.json());
      return state();
    },
    'DELETE /release': () => {
      releases.clear();
      return state();
    },
  };
}
