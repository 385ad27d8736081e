#pragma once
// Stands in for libQLNMPMRA.so in the unit tests of the indication frame:
// MPMRASMIF records each trap it is given and answers as told. The real
// library has tests of its own against snmptrapd.
#include "varbind.h"

#include <vector>

struct RecordedTrap {
    unsigned int trapId;
    std::vector<varbind> variables;
};

struct TrapRecorder {
    std::vector<RecordedTrap> traps;
    int result = 0;
};

TrapRecorder& trapRecorder();
