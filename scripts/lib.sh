# What the project's commands share. Sourced by bash, from the project's folder.

say() { printf 'loomstreet: %s\n' "$*"; }

# build_preset PRESET [TARGET…]: configures when there is reason to and builds.
build_preset() {
  local preset=$1
  shift
  local folder=build/$preset
  export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
  [ -f "$folder/build.ninja" ] || cmake --preset "$preset" || return 1
  NINJA_STATUS="[%f/%t] " ninja -C "$folder" "$@"
}

# The values of the sandbox store.
write_sandbox_secrets() {
  SHOPIFY_DOMAIN=shop.loomstreet.example SHOPIFY_STOREFRONT_TOKEN=sandbox-storefront-token \
    SUPPORT_BASE=https://service.loomstreet.example SUPPORT_KEY=sandbox-widget-key \
    STORE_WEB_URL=https://www.loomstreet.example \
    UPDATE_PUBLIC_KEY=$(sed -n 2p sandbox/data/release/loomstreet-sandbox.pub) scripts/sync-secrets.sh
}

# Leaves a build that belongs to another store as it is.
prepare_secrets() {
  if [ ! -f resources/Secrets.plist ] || uses_sandbox; then write_sandbox_secrets; fi
}

uses_sandbox() { grep -q 'shop\.loomstreet\.example' resources/Secrets.plist; }

sandbox_pid=""
sandbox_folder=""

# start_sandbox [OPTION…]: starts the sandbox store, ends it with this shell, and sets the variables sandbox_ready,
# sandbox_proxy, sandbox_control and sandbox_ca.
start_sandbox() {
  sandbox_folder=$(mktemp -d)
  sandbox_ready=$sandbox_folder/ready.json
  sandbox/loomstreet-sandbox --ready-file "$sandbox_ready" --parent-pid $$ "$@" >"$sandbox_folder/out" 2>"$sandbox_folder/err" &
  sandbox_pid=$!
  trap stop_sandbox EXIT
  local tries=0
  until [ -s "$sandbox_ready" ]; do
    if ! kill -0 "$sandbox_pid" 2>/dev/null || [ $((tries += 1)) -gt 200 ]; then
      say "the sandbox store did not start:"
      cat "$sandbox_folder/err" >&2
      return 1
    fi
    sleep 0.05
  done
  sandbox_proxy=$(ready_value proxy)
  sandbox_control=$(ready_value control)
  sandbox_ca=$(ready_value caFile)
  say "the sandbox store runs (control port: $sandbox_control)"
}

ready_value() { node -p 'JSON.parse(require("fs").readFileSync(process.argv[1]))[process.argv[2]]' "$sandbox_ready" "$1"; }

stop_sandbox() {
  [ -z "$sandbox_pid" ] || kill "$sandbox_pid" 2>/dev/null || true
  [ -z "$sandbox_folder" ] || rm -rf "$sandbox_folder"
}

# A home of its own for the application: its certificate store, which the web view reads, holds the sandbox's
# authority, and what it saves does not mix with what it saves for a real store. Sets sandbox_environment.
prepare_sandbox_home() {
  local home=${1:-${XDG_CACHE_HOME:-$HOME/.cache}/loomstreet-sandbox/home}
  mkdir -p "$home/.pki/nssdb" "$home/Pictures"
  if [ ! -f "$home/.pki/nssdb/cert9.db" ]; then
    certutil -d "sql:$home/.pki/nssdb" -N --empty-password
  fi
  if ! certutil -d "sql:$home/.pki/nssdb" -L -n loomstreet-sandbox -a 2>/dev/null | cmp -s - "$sandbox_ca"; then
    certutil -d "sql:$home/.pki/nssdb" -D -n loomstreet-sandbox 2>/dev/null || true
    certutil -d "sql:$home/.pki/nssdb" -A -n loomstreet-sandbox -t C,, -i "$sandbox_ca"
  fi
  sandbox_environment=(
    HOME="$home" XDG_CONFIG_HOME="$home/.config" XDG_DATA_HOME="$home/.local/share" XDG_CACHE_HOME="$home/.cache"
    https_proxy="$sandbox_proxy" http_proxy="$sandbox_proxy" no_proxy="" LOOMSTREET_CA_FILE="$sandbox_ca"
  )
}
