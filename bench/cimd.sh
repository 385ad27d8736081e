# Shared by the benchmark scripts (sourced, not run): starts veldra-cimd on a
# free port and speaks raw CIM-XML to it.
#
#   start_cimd BUILD WORK [veldra-cimd options...]   sets cimd_pid and port
#   stop_cimd                                         for the EXIT trap
#   envelope METHOD PARAMS                            a request in root/mwq
#   cim_post METHOD FILE                              posts it, prints the answer
#   first_instance_name CLASS FILE                    the first INSTANCENAME

cimd_pid=""
port=""

start_cimd() {
  local build=$1 work=$2
  shift 2
  "$build/bin/veldra-cimd" --port 0 --port-file "$work/port" "$@" >"$work/stdout" 2>"$work/stderr" &
  cimd_pid=$!
  for _ in $(seq 1 600); do [ -s "$work/port" ] && break; sleep 0.05; done
  [ -s "$work/port" ] || { echo "veldra-cimd did not start:"; cat "$work/stderr"; exit 1; }
  port="$(cat "$work/port")"
}

# veldra-cimd drains its requests on SIGTERM; one abandoned by a client may
# run for minutes, so it gets ten seconds before SIGKILL.
stop_cimd() {
  if [ -n "$cimd_pid" ] && kill "$cimd_pid" 2>/dev/null; then
    for _ in $(seq 1 100); do kill -0 "$cimd_pid" 2>/dev/null || break; sleep 0.1; done
    kill -9 "$cimd_pid" 2>/dev/null || true
    wait "$cimd_pid" 2>/dev/null || true
  fi
}

envelope() {
  printf '<?xml version="1.0" encoding="utf-8" ?><CIM CIMVERSION="2.0" DTDVERSION="2.0"><MESSAGE ID="1" PROTOCOLVERSION="1.0"><SIMPLEREQ><IMETHODCALL NAME="%s"><LOCALNAMESPACEPATH><NAMESPACE NAME="root"/><NAMESPACE NAME="mwq"/></LOCALNAMESPACEPATH>%s</IMETHODCALL></SIMPLEREQ></MESSAGE></CIM>' "$1" "$2"
}

cim_post() {
  curl -s -X POST "http://127.0.0.1:$port/cimom" -H 'Content-Type: application/xml; charset="utf-8"' \
    -H "CIMOperation: MethodCall" -H "CIMMethod: $1" -H "CIMObject: root%2Fmwq" --data-binary "@$2"
}

first_instance_name() {
  envelope EnumerateInstanceNames "<IPARAMVALUE NAME=\"ClassName\"><CLASSNAME NAME=\"$1\"/></IPARAMVALUE>" >"$2"
  cim_post EnumerateInstanceNames "$2" | python3 -c '
import sys, xml.etree.ElementTree as ET
name = ET.fromstring(sys.stdin.read()).find(".//INSTANCENAME")
print(ET.tostring(name, encoding="unicode").replace(" />", "/>"))'
}
