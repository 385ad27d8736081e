#!/usr/bin/env bash
# check-mib.sh <base module dir> <our MIB dir>
# The MIB must pass smilint at level 3 without a word, and every trap OID
# the provider sends must resolve to its notification's name.
set -uo pipefail
base=$1
ours=$2
mib=$ours/QLN-VELDRA-MIB.txt
if [ ! -f "$base/SNMPv2-SMI.mib" ]; then
  echo "FAIL: the SNMPv2 base modules are not in $base (npm could not fetch net-snmp; see the build output)"
  exit 1
fi
status=0

lint=$(SMIPATH="$base" smilint -l 3 "$mib" 2>&1)
if [ -n "$lint" ]; then
  echo "FAIL: smilint -l 3 reports:"
  echo "$lint"
  status=1
fi

declare -A traps=(
  [3015]=zrqDaCntlrStatusChange [3034]=zrqDaLogDrvStatusChange [3038]=zrqDaAccelStatusChange
  [3040]=zrqDaAccelBatteryFailed [3046]=zrqDaPhyDrvStatusChange [3049]=zrqDaPhyDrvSSDWearStatusChange
  [8009]=zrqSsBoxTempCritical [8010]=zrqSsBoxTempWarning [8011]=zrqSsBoxTempOK
  [8029]=zrqSsBoxFanStatusChange [8031]=zrqSsBoxPowerSupplyStatusChange)
for number in "${!traps[@]}"; do
  got=$(snmptranslate -M "$base:$ours" -m ALL ".1.3.6.1.4.1.57913.0.$number" 2>&1)
  if [ "$got" != "QLN-VELDRA-MIB::${traps[$number]}" ]; then
    echo "FAIL: trap $number resolves to '$got', expected QLN-VELDRA-MIB::${traps[$number]}"
    status=1
  fi
done
# And back: the module defines no notification that the provider does not send.
defined=$(grep -c 'NOTIFICATION-TYPE$' "$mib")
if [ "$defined" -ne "${#traps[@]}" ]; then
  echo "FAIL: the MIB defines $defined notifications, the provider sends ${#traps[@]}"
  status=1
fi
[ $status -eq 0 ] && echo "MIB passes smilint -l 3 and names all ${#traps[@]} traps"
exit $status
