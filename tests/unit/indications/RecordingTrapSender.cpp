#include "RecordingTrapSender.h"
#include "MPMRASMIF.h"

TrapRecorder& trapRecorder() {
    static TrapRecorder recorder;
    return recorder;
}

MPMRASMIF::MPMRASMIF(Logger& logger) : _logger(logger) {}

MPMRASMIF::~MPMRASMIF() = default;

int MPMRASMIF::sentSnmpTrapPassThrough(unsigned int const& trapId,
                                       std::vector<varbind> const& variables) {
    trapRecorder().traps.push_back({trapId, variables});
    return trapRecorder().result;
}
