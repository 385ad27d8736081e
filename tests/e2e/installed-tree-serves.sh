#!/usr/bin/env bash
# Installs the build into a fresh prefix and runs veldra-cimd from there, away
# from the source and build trees: the installed tree must find its own
# providers, MOF, registration and scenario.
#   installed-tree-serves.sh BUILD_DIR
set -euo pipefail
build=$1
prefix=$(mktemp -d)
cimd=
cleanup() {
  [ -n "$cimd" ] && kill "$cimd" 2>/dev/null && wait "$cimd" 2>/dev/null
  rm -rf "$prefix"
}
trap cleanup EXIT
fail() { echo "FAIL: $*"; echo "--- veldra-cimd log"; cat "$prefix/cimd.log" 2>/dev/null; exit 1; }

cmake --install "$build" --prefix "$prefix/usr" >/dev/null

cd /
"$prefix/usr/bin/veldra-cimd" --port 0 --port-file "$prefix/port" >"$prefix/cimd.log" 2>&1 &
cimd=$!
for _ in $(seq 100); do [ -s "$prefix/port" ] && break; sleep 0.1; done
[ -s "$prefix/port" ] || fail "veldra-cimd did not start"
url="http://127.0.0.1:$(cat "$prefix/port")"

grep -q "loaded providers from $prefix/usr/share/veldra/registration/veldra-cimd.yaml" "$prefix/cimd.log" \
  || fail "registration not taken from the installed tree"
grep -q "simulated controllers from $prefix/usr/.*share/veldra/scenarios/demo.yaml: 2" "$prefix/cimd.log" \
  || fail "scenario not taken from the installed tree"
disks=$(wbemcli ein "$url/root/mwq:QLN_VDDiskDrive" | wc -l)
[ "$disks" -eq 24 ] || fail "24 disks expected, got $disks"
wbemcli gc "$url/root/mwq:QLN_VDDiskDrive" | grep -q "QLN_VDDiskDrive" || fail "class not served from installed MOF"
views=$(wbemcli ein "$url/root/cimv2:DRSV_VDController" | wc -l)
[ "$views" -eq 2 ] || fail "2 view controllers expected, got $views"
echo "installed tree serves the demo"
