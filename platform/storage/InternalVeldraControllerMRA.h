#pragma once
// The root of the storage-access library: it knows the controllers.
//
// internalVeldraControllerMRAFactory picks the back end named by the
// framework configuration (VELDRA_STORAGE_BACKEND, default "sim"). The
// simulated back end reads the scenario file named by VELDRA_SCENARIO; when
// that is not set it takes demo.yaml from <prefix>/share/veldra/scenarios
// next to the installed library, and failing that from the source tree's
// data/scenarios. A back end that cannot start logs why and the factory
// returns null. The caller owns the root and deletes it.
#include "Logger.h"
#include "VeldraController.h"

#include <string>

class InternalVeldraControllerMRA {
public:
    virtual ~InternalVeldraControllerMRA() = default;
    // First controller, or null when there is none.
    virtual VeldraController* getFirstData() = 0;
    // The controller after `controller`, or null at the end.
    virtual VeldraController* getNextData(VeldraController* controller) = 0;

    // Where the simulated back end looks for its scenario when
    // VELDRA_SCENARIO is not set; empty when no candidate exists.
    static std::string defaultScenarioPath();
};

InternalVeldraControllerMRA* internalVeldraControllerMRAFactory(Logger& logger);
