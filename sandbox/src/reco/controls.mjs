/** What the control port can ask of recommendations. */
export function recoControls({ recoModes }) {
  return {
    'GET /reco': () => recoModes.values,
    'POST /reco': async (exchange) => {
      recoModes.change(await exchange.json());
      return recoModes.values;
    },
    'DELETE /reco': () => recoModes.clear(),
  };
}
