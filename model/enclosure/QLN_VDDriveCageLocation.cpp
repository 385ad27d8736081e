#include "QLN_VDDriveCageLocation.h"

#include "CmpiBroker.h"
#include "EnclosureLocationInfo.h"
#include "EnclosureSnapshot.h"
#include "QLNUtil.h"

namespace {
char const* const className = "QLN_VDDriveCageLocation";
char const* const missingText =
    "getInstance, findEnclosureInVector could not find drive based on serial #";
char const* const cageText = "Drive Cage";
// CIM_Location tag description: position within the enclosure.
unsigned short const tagDescription = 22;
} // namespace

namespace QLN {

QLN_VDDriveCageLocation::QLN_VDDriveCageLocation(Logger& logger, std::string const& nameSpace,
                                                 unsigned int controllerIndex,
                                                 VeldraEnclosure const& enclosure,
                                                 VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller),
      _boxNumber(enclosure.getBoxNumber()),
      _enclosureBoxNumber(static_cast<int>(enclosure.getEnclosureBoxNumber())) {}

std::optional<std::string> QLN_VDDriveCageLocation::duplexTagOf(int duplexLocation) {
    switch (duplexLocation) {
    case 0:
        return "Non Duplex";
    case 1:
        return "Duplex Top";
    case 2:
        return "Duplex Bottom";
    }
    return std::nullopt;
}

CmpiCpp::CmpiObjectPath QLN_VDDriveCageLocation::getPath() const {
    // The box number as shown, kept from the record the cage was made from,
    // so that the path does not depend on a later read.
    return _locationPath(std::to_string(_controllerIndex) + "-" + std::to_string(_boxNumber));
}

CmpiCpp::CmpiInstance QLN_VDDriveCageLocation::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    VeldraEnclosure const enclosure = EnclosureSnapshot::find(
        _controller, static_cast<u32>(_enclosureBoxNumber), _logger, missingText);

    // Name and PhysicalPosition are the path's keys, set with it.
    instance.addProperty("Caption", cageText);
    instance.addProperty("Description", cageText);
    instance.addProperty("ElementName", cageText);
    if (auto tag = duplexTagOf(enclosure.getDuplexLocation()))
        instance.addProperty("ElementLocationTag", *tag);
    instance.addProperty("ElementLocationTagDesc", tagDescription);
    EnclosureLocationInfo::add(instance, _controller, enclosure.getBoxNumber());
    return instance;
}

} // namespace QLN
