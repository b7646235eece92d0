/** What the control port can ask of the application's configuration. */
export function configControls({ remoteConfig }) {
  return {
    'GET /config': () => remoteConfig.values,
    'POST /config': async (exchange) => {
      remoteConfig.change(await exchange.json());
      return remoteConfig.values;
    },
    'DELETE /config': () => {
      remoteConfig.clear();
      return remoteConfig.values;
    },
  };
}
