#!/usr/bin/env bash
# Writes resources/Secrets.plist, the property list that tells a build which store it belongs to. The next build puts
# it into the application's resources.
#
#   scripts/sync-secrets.sh            the values come from the environment
#   scripts/sync-secrets.sh FILE       the values come from a file of NAME=value lines
#
# Names: SHOPIFY_DOMAIN, SHOPIFY_STOREFRONT_TOKEN, SUPPORT_BASE, SUPPORT_KEY, and if wanted STORE_WEB_URL and
# UPDATE_PUBLIC_KEY, the line of a minisign key that releases are signed with.
set -euo pipefail
cd "$(dirname "$0")/.."

if [ "${1:-}" = "--help" ] || [ "${1:-}" = "-h" ]; then
  sed -n '2,9s/^# \{0,1\}//p' "$0"
  exit 0
fi

if [ $# -gt 0 ]; then
  [ -r "$1" ] || { echo "sync-secrets: cannot read $1" >&2; exit 1; }
  while IFS='=' read -r name value || [ -n "$name" ]; do
    case "$name" in
      SHOPIFY_DOMAIN|SHOPIFY_STOREFRONT_TOKEN|SUPPORT_BASE|SUPPORT_KEY|STORE_WEB_URL|UPDATE_PUBLIC_KEY)
        printf -v "$name" '%s' "${value%$'\r'}" ;;
    esac
  done < "$1"
fi

missing=()
for name in SHOPIFY_DOMAIN SHOPIFY_STOREFRONT_TOKEN SUPPORT_BASE SUPPORT_KEY; do
  [ -n "${!name:-}" ] || missing+=("$name")
done
if [ "${#missing[@]}" -gt 0 ]; then
  echo "sync-secrets: missing ${missing[*]}" >&2
  exit 1
fi

if [[ -n "${UPDATE_PUBLIC_KEY:-}" && ! "$UPDATE_PUBLIC_KEY" =~ ^RW[A-Za-z0-9+/]{54}$ ]]; then
  echo "sync-secrets: UPDATE_PUBLIC_KEY is no public key of minisign's" >&2
  exit 1
fi

escaped() { sed -e 's/&/\&amp;/g' -e 's/</\&lt;/g' -e 's/>/\&gt;/g' <<<"$1"; }
entry() { printf '\t<key>%s</key>\n\t<string>%s</string>\n' "$1" "$(escaped "$2")"; }

mkdir -p resources
umask 077
new=$(mktemp resources/.Secrets.XXXXXX)
{
  echo '<?xml version="1.0" encoding="UTF-8"?>'
  echo '<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">'
  echo '<plist version="1.0">'
  echo '<dict>'
  entry ShopifyDomain "$SHOPIFY_DOMAIN"
  entry ShopifyStorefrontToken "$SHOPIFY_STOREFRONT_TOKEN"
  entry SupportBase "$SUPPORT_BASE"
  entry SupportKey "$SUPPORT_KEY"
  [ -z "${STORE_WEB_URL:-}" ] || entry StoreWebURL "$STORE_WEB_URL"
  [ -z "${UPDATE_PUBLIC_KEY:-}" ] || entry UpdatePublicKey "$UPDATE_PUBLIC_KEY"
  echo '</dict>'
  echo '</plist>'
} > "$new"
# An unchanged file keeps its time, so that nothing is built again for it.
if cmp -s "$new" resources/Secrets.plist; then rm "$new"; else mv "$new" resources/Secrets.plist; fi
