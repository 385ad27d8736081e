#!/usr/bin/env bash
# Load check of veldra-cimd from a second process: starts the server on a
# free port with a scenario, finds the class with the most instances, and
# runs wrk against GetInstance of one of them and EnumerateInstances of all.
# The default 20 s per operation spans the provider's periodic worker pass
# (first after 18 s, then every 30 s), so requests meet a pass in flight.
#
#   bench/cimom/load.sh [--build DIR] [--scenario FILE] [--registration FILE]
#                       [--duration 20s] [--connections 8] [--threads 2]
set -euo pipefail
root="$(cd "$(dirname "$0")/../.." && pwd)"
build="$root/build"
scenario=""
registration="$root/data/registration/veldra-cimd.yaml"
duration=20s
connections=8
threads=2
while [ $# -gt 0 ]; do
  case "$1" in
    --build) build="$2"; shift 2;;
    --scenario) scenario="$2"; shift 2;;
    --registration) registration="$2"; shift 2;;
    --duration) duration="$2"; shift 2;;
    --connections) connections="$2"; shift 2;;
    --threads) threads="$2"; shift 2;;
    *) echo "load.sh: unknown option $1" >&2; exit 2;;
  esac
done
if [ -z "$scenario" ]; then
  for s in "$root"/data/scenarios/large*.yaml "$root"/data/scenarios/demo.yaml; do
    [ -f "$s" ] && { scenario="$s"; break; }
  done
fi
command -v wrk >/dev/null || { echo "load.sh: wrk missing (scripts/bootstrap installs it)" >&2; exit 1; }

# shellcheck source=../cimd.sh
. "$root/bench/cimd.sh"
work="$(mktemp -d)"
cleanup() {
  stop_cimd
  rm -rf "$work"
}
trap cleanup EXIT

args=(--log-level warn --threads 8 --registration "$registration")
[ -n "$scenario" ] && args+=(--scenario "$scenario")
start_cimd "$build" "$work" "${args[@]}"
url="http://127.0.0.1:$port/root/mwq"
echo "veldra-cimd on port $port, scenario: ${scenario:-none}"

# The class with the most instances.
best=""; best_count=0
# Our classes only: a schema base class (CIM_...) holds its subclasses' instances.
for cls in $(wbemcli -nl ecn "$url" 2>/dev/null | sed 's/.*://' | grep -v '^CIM_'); do
  n=$(wbemcli ein "$url:$cls" 2>/dev/null | grep -c . || true)
  if [ "$n" -gt "$best_count" ]; then best="$cls"; best_count="$n"; fi
done
[ -n "$best" ] || { echo "no class has instances"; exit 1; }
echo "largest class: $best ($best_count instances)"

first_name="$(first_instance_name "$best" "$work/ein.xml")"
envelope GetInstance "<IPARAMVALUE NAME=\"InstanceName\">$first_name</IPARAMVALUE>" >"$work/gi.xml"
envelope EnumerateInstances "<IPARAMVALUE NAME=\"ClassName\"><CLASSNAME NAME=\"$best\"/></IPARAMVALUE><IPARAMVALUE NAME=\"DeepInheritance\"><VALUE>TRUE</VALUE></IPARAMVALUE>" >"$work/ei.xml"

for op in GetInstance:gi EnumerateInstances:ei; do
  method="${op%%:*}"; file="$work/${op##*:}.xml"
  if cim_post "$method" "$file" | grep -q "<ERROR "; then echo "$method answers an error; aborting"; exit 1; fi
  echo "== $method ($best), $duration, $connections connections, $threads wrk threads"
  BODY_FILE="$file" CIM_METHOD="$method" wrk -t"$threads" -c"$connections" -d"$duration" --latency \
    -s "$root/bench/cimom/post.lua" "http://127.0.0.1:$port" | grep -E "Requests/sec|Latency|requests:|latency p|Non-2xx|Socket"
done
