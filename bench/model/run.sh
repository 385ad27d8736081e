#!/usr/bin/env bash
# The storage model under load from a second process: generates the large
# scenario (16 controllers x 256 disks by default), starts veldra-cimd on a
# free port, and reports
#   - the graph build: wall time from launch until the first answer, and the
#     resident memory before the provider loads and after;
#   - the instances of every class (EnumerateInstanceNames through wbemcli);
#   - EnumerateInstances of QLN_VDDiskDrive with wrk, in instances per second;
#   - the latency of Associators of one disk and of one array system (wrk,
#     one connection, so the percentiles are those of single requests);
#   - EnumerateInstances of every class, twice, with the rate of the largest
#     association classes and the memory afterwards;
#   - the memory while every instance is pulled 1,000 at a time;
# and ends with one line per target, the target beside it.
#
#   bench/model/run.sh [--build DIR] [--controllers N] [--disks M]
#                      [--duration 10s] [--connections 4] [--threads 2] [--class-limit 60]
set -euo pipefail
root="$(cd "$(dirname "$0")/../.." && pwd)"
build="$root/build"
controllers=16
disks=256
duration=10s
connections=4
threads=2
class_limit=60
while [ $# -gt 0 ]; do
  case "$1" in
    --build) build="$2"; shift 2;;
    --controllers) controllers="$2"; shift 2;;
    --disks) disks="$2"; shift 2;;
    --duration) duration="$2"; shift 2;;
    --connections) connections="$2"; shift 2;;
    --threads) threads="$2"; shift 2;;
    --class-limit) class_limit="$2"; shift 2;;
    *) echo "run.sh: unknown option $1" >&2; exit 2;;
  esac
done
for tool in wrk wbemcli curl python3; do
  command -v "$tool" >/dev/null || { echo "run.sh: $tool missing (scripts/bootstrap installs it)" >&2; exit 1; }
done
for bin in veldra-cimd veldra-sim; do
  [ -x "$build/bin/$bin" ] || { echo "run.sh: $build/bin/$bin not built" >&2; exit 1; }
done

# shellcheck source=../cimd.sh
. "$root/bench/cimd.sh"
work="$(mktemp -d /tmp/veldra-model-bench.XXXXXX)"
cleanup() {
  stop_cimd
  rm -rf "$work"
}
trap cleanup EXIT

scenario="$work/large.yaml"
"$build/bin/veldra-sim" generate --controllers "$controllers" --disks-per-controller "$disks" --output "$scenario" >/dev/null
echo "scenario: $controllers controllers x $disks disks ($(wc -c <"$scenario") bytes)"

rss_kb() { awk '/^VmRSS/ {print $2}' "/proc/$1/status"; }
now_ms() { date +%s%3N; }

started=$(now_ms)
start_cimd "$build" "$work" --log-level info --threads 8 --scenario "$scenario" \
  --registration "$root/data/registration/veldra-cimd.yaml" --mof-dir "$root/data/mof" --provider-dir "$build/lib"
listening=$(now_ms)
rss_listening=$(rss_kb "$cimd_pid")
url="http://127.0.0.1:$port/root/mwq"
# The first request into the provider's classes waits for a graph build
# that has not finished yet (or triggers a lazy one).
wbemcli ein "$url:QLN_VDArraySystem" >"$work/systems"
answered=$(now_ms)
rss_built=$(rss_kb "$cimd_pid")
echo "graph build: listening after $((listening - started)) ms, first answer after $((answered - started)) ms"
echo "resident memory: $((rss_listening / 1024)) MiB when listening, $((rss_built / 1024)) MiB after the first answer"
grep -m1 -E "_cmpiManagedInstanceFactory" "$work/stderr" | sed 's/^/  first factory log line: /' || true
grep -E "return _createAllLogicalDiskInstances" "$work/stderr" | tail -1 | sed 's/^/  last graph log line:    /' || true


# Runs wrk on one request; prints its summary lines. $1 method, $2 body file,
# $3 connections.
load() {
  local t=$threads
  [ "$3" -lt "$t" ] && t=$3
  # A long timeout: a slow answer is measured, not counted as a socket error.
  BODY_FILE="$2" CIM_METHOD="$1" wrk -t"$t" -c"$3" -d"$duration" --timeout 120s --latency \
    -s "$root/bench/cimom/post.lua" "http://127.0.0.1:$port"
}

envelope EnumerateInstances '<IPARAMVALUE NAME="ClassName"><CLASSNAME NAME="QLN_VDDiskDrive"/></IPARAMVALUE>' >"$work/ei.xml"
if cim_post EnumerateInstances "$work/ei.xml" | grep -q "<ERROR "; then echo "EnumerateInstances answers an error"; exit 1; fi
disk_count=$(wbemcli ein "$url:QLN_VDDiskDrive" | grep -c .)
echo "== EnumerateInstances QLN_VDDiskDrive ($disk_count instances), $duration, $connections connections"
load EnumerateInstances "$work/ei.xml" "$connections" | tee "$work/ei.out" | grep -E "Requests/sec|Latency|requests:|50%|99%"
rate=$(awk '/Requests\/sec/ {print $2}' "$work/ei.out")
ei_rate=$(python3 -c "print('%.0f' % ($rate * $disk_count))")
ei_p99=$(awk '$1 == "99%" {print $2}' "$work/ei.out" | python3 -c '
import sys
t = sys.stdin.read().strip()
scale = {"us": 0.001, "ms": 1, "s": 1000, "m": 60000}
unit = t.lstrip("0123456789.")
print("%.0f" % (float(t[:len(t) - len(unit)]) * scale[unit]))')
echo "instances per second: $ei_rate"

for cls in QLN_VDDiskDrive QLN_VDArraySystem; do
  envelope Associators "<IPARAMVALUE NAME=\"ObjectName\">$(first_instance_name "$cls" "$work/names.xml")</IPARAMVALUE>" >"$work/assoc.xml"
  if cim_post Associators "$work/assoc.xml" | grep -q "<ERROR "; then echo "Associators of $cls answers an error"; exit 1; fi
  found=$(cim_post Associators "$work/assoc.xml" | grep -o "<VALUE.OBJECTWITHPATH>" | wc -l)
  echo "== Associators of one $cls ($found instances), $duration, 1 connection"
  load Associators "$work/assoc.xml" 1 | grep -E "Requests/sec|Latency|requests:|50%|90%|99%"
done
# Our classes only: a schema base class (CIM_...) would count its subclasses' instances again.
classes=$(wbemcli -nl ecn "$url" | sed 's/.*://' | grep -v '^CIM_')
total=0
incomplete=""
biggest=""
echo "instances per class (EnumerateInstances, time per class; the sweep runs twice, the second is shown):"
for round in 1 2; do
  total=0
  for cls in $classes; do
    envelope EnumerateInstances "<IPARAMVALUE NAME=\"ClassName\"><CLASSNAME NAME=\"$cls\"/></IPARAMVALUE>" >"$work/cls.xml"
    began=$(now_ms)
    # A class whose enumeration outlasts the limit is reported, not waited for.
    if curl -s --max-time "$class_limit" -X POST "http://127.0.0.1:$port/cimom" \
        -H 'Content-Type: application/xml; charset="utf-8"' -H "CIMOperation: MethodCall" \
        -H "CIMMethod: EnumerateInstances" -H "CIMObject: root%2Fmwq" --data-binary "@$work/cls.xml" >"$work/answer"
    then note=""; else note="  NOT ANSWERED within ${class_limit}s"; incomplete="$incomplete $cls"; fi
    took=$(( $(now_ms) - began ))
    n=$(grep -o "<VALUE.NAMEDINSTANCE>" "$work/answer" | wc -l || true)
    total=$((total + n))
    [ "$round" = 2 ] || continue
    printf '  %-62s %7d %7d ms%s\n' "$cls" "$n" "$took" "$note"
    biggest="$biggest$n $took $cls"$'\n'
  done
done
echo "instances of all classes: $total${incomplete:+ (incomplete:$incomplete)}"
rss_swept_now=$(rss_kb "$cimd_pid")
# veldra-cimd hands freed memory back once large answers have stopped for a
# moment; the figure at rest is the one a user sees between requests.
sleep 1
rss_swept=$(rss_kb "$cimd_pid")
echo "resident memory after every class was enumerated twice: $((rss_swept_now / 1024)) MiB at once, $((rss_swept / 1024)) MiB a second later"

read -r pulled pulls rss_pull < <(python3 "$root/bench/model/pull.py" "$port" "$cimd_pid" 1000 $classes)
echo "pulled $pulled instances of all classes 1,000 at a time ($pulls requests); resident memory at most $rss_pull MiB"

# One line per target: the figure, the target, and whether it is met.
verdict() { python3 -c "import sys; print('met' if $1 else 'NOT met')"; }
echo "== targets"
printf '  %-58s %12s   target %-14s %s\n' \
  "EnumerateInstances QLN_VDDiskDrive, $connections connections" "$ei_rate/s" ">= 150000/s" "$(verdict "$ei_rate >= 150000")" \
  "p99 per $disk_count-instance answer" "$ei_p99 ms" "< 100 ms" "$(verdict "$ei_p99 < 100")"
printf "%s" "$biggest" | sort -rn | sed -n 1,2p | while read -r n took cls; do
  per_s=$(python3 -c "print('%.0f' % ($n * 1000 / max($took, 1)))")
  printf '  %-58s %12s   target %-14s %s\n' "EnumerateInstances $cls ($n)" "$per_s/s" ">= 100000/s" \
    "$(verdict "$per_s >= 100000")"
done
# The build runs from the provider's first factory log line to its last graph line.
build_ms=$(grep -E "_cmpiManagedInstanceFactory|return _createAllLogicalDiskInstances" "$work/stderr" | python3 -c '
import sys
from datetime import datetime
stamps = [datetime.strptime(line.split()[0], "%Y-%m-%dT%H:%M:%S.%fZ") for line in sys.stdin]
print(round((stamps[-1] - stamps[0]).total_seconds() * 1000) if len(stamps) > 1 else -1)')
printf '  %-58s %12s   target %-14s %s\n' \
  "graph build (first factory to last graph log line)" "$build_ms ms" "< 1000 ms" \
  "$(verdict "0 <= $build_ms < 1000")" \
  "resident memory after the build" "$((rss_built / 1024)) MiB" "< 120 MiB" "$(verdict "$rss_built < 120 * 1024")" \
  "resident memory after every class enumerated twice, at rest" "$((rss_swept / 1024)) MiB" "< 150 MiB" \
  "$(verdict "$rss_swept < 150 * 1024")" \
  "resident memory while pulling every instance by 1,000" "$rss_pull MiB" "bounded" \
  "(pulled $pulled of $total)"
