#!/bin/sh
# The provider library must export the four generic entry points and nothing
# else of ours; anything more could clash with other providers in one process.
set -eu
actual=$(nm -D --defined-only "$1" | awk '{print $3}' | sort | tr '\n' ' ')
expected="_Generic_Create_AssociationMI _Generic_Create_IndicationMI _Generic_Create_InstanceMI _Generic_Create_MethodMI "
if [ "$actual" != "$expected" ]; then
  echo "exported: $actual"
  echo "expected: $expected"
  exit 1
fi
