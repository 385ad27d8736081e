#include "QLN_VDStorageEnclosureLocation.h"

#include "CmpiBroker.h"
#include "EnclosureLocationInfo.h"
#include "EnclosureSnapshot.h"
#include "IdentityHelpers.h"
#include "QLNUtil.h"
#include "VeldraStorageFunctions.h"

namespace {
char const* const className = "QLN_VDStorageEnclosureLocation";
// Speaks of a drive although this is an enclosure; clients and log scanners
// match the text as it is.
char const* const missingText =
    "getInstance, findEnclosureInVector could not find drive based on serial #";
// CIM_Location tag description: location relative to the controller.
unsigned short const tagDescription = 19;
} // namespace

namespace QLN {

QLN_VDStorageEnclosureLocation::QLN_VDStorageEnclosureLocation(Logger& logger,
                                                               std::string const& nameSpace,
                                                               unsigned int controllerIndex,
                                                               VeldraEnclosure const& enclosure,
                                                               VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller),
      _enclosureBoxNumber(enclosure.getEnclosureBoxNumber()) {}

std::string QLN_VDStorageEnclosureLocation::locationTagOf(std::string const& portText) {
    // Port names carry I for internal and E or X for external connectors.
    // I is asked first, so a box reached through both counts as internal.
    if (portText.find('I') != std::string::npos)
        return "Internal";
    if (portText.find_first_of("EX") != std::string::npos)
        return "External";
    return "Unknown";
}

CmpiCpp::CmpiObjectPath QLN_VDStorageEnclosureLocation::getPath() const {
    return _locationPath(enclosureTag(_controllerIndex, _enclosureBoxNumber));
}

CmpiCpp::CmpiInstance QLN_VDStorageEnclosureLocation::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    VeldraEnclosure const enclosure =
        EnclosureSnapshot::find(_controller, _enclosureBoxNumber, _logger, missingText);
    std::string const userText = pathsToUserStr(enclosure.getPaths(), -1);

    // Name and PhysicalPosition are the path's keys, set with it.
    instance.addProperty("Caption", userText);
    instance.addProperty("Description", userText);
    instance.addProperty("ElementName", userText);
    instance.addProperty("ElementLocationTag", locationTagOf(pathsToPortStr(enclosure.getPaths())));
    instance.addProperty("ElementLocationTagDesc", tagDescription);
    EnclosureLocationInfo::add(instance, _controller, enclosure.getBoxNumber());
    return instance;
}

} // namespace QLN
