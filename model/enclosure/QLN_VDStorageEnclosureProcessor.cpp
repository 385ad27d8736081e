#include "QLN_VDStorageEnclosureProcessor.h"

#include "CmpiBroker.h"
#include "EnclosureSnapshot.h"
#include "FixedStateProperties.h"
#include "IdentityHelpers.h"
#include "QLNUtil.h"
#include "VDArrayValues.h"
#include "VeldraStorageFunctions.h"

namespace {

char const* const className = "QLN_VDStorageEnclosureProcessor";
char const* const missingText = "getInstance, findEnclosureInVector could not find enclosure";

struct ProcessorHealth {
    unsigned short operational;
    unsigned short health;
};

// A failed enclosure is HealthState 20 (major failure), not the 25 of a
// failed disk: the enclosure may still carry working disks.
ProcessorHealth healthOf(u32 overall) {
    switch (overall) {
    case 2:
        return {2, 5};
    case 3:
        return {3, 10};
    case 6:
        return {6, 20};
    }
    return {0, 0};
}

} // namespace

namespace QLN {

QLN_VDStorageEnclosureProcessor::QLN_VDStorageEnclosureProcessor(Logger& logger,
                                                                 std::string const& nameSpace,
                                                                 unsigned int controllerIndex,
                                                                 VeldraEnclosure const& enclosure,
                                                                 VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller),
      _serialNumber(enclosure.getSerialNumber()), _paths(enclosure.getLastAllPhysicalPaths()),
      _portString(pathsToPortStr(_paths)),
      _boxNumber(static_cast<unsigned int>(enclosure.getBoxNumber())),
      _enclosureBoxNumber(enclosure.getEnclosureBoxNumber()) {}

CmpiCpp::CmpiObjectPath QLN_VDStorageEnclosureProcessor::getPath() const {
    return _pathByClassAndKey("Name", enclosureTag(_controllerIndex, _enclosureBoxNumber));
}

CmpiCpp::CmpiInstance QLN_VDStorageEnclosureProcessor::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    VeldraEnclosure const enclosure =
        EnclosureSnapshot::find(_controller, _enclosureBoxNumber, _logger, missingText);
    std::vector<VeldraPhysicalPath> const paths = enclosure.getPaths();

    instance.addProperty("CreationClassName", className);
    instance.addProperty("Name", enclosureTag(_controllerIndex, _enclosureBoxNumber));
    instance.addProperty("NameFormat", "Other");
    instance.addProperty("ElementName", pathsToUserStr(paths, -1));
    instance.addProperty("IdentifyingDescriptions",
                         VDArrayValues::strings({"Other Vendor Specific Name"}));
    instance.addProperty("OtherIdentifyingInfo",
                         VDArrayValues::strings({pathsToPortStr(paths) + ":" +
                                                 std::to_string(enclosure.getBoxNumber())}));
    ProcessorHealth const health = healthOf(enclosure.getOverallStatus());
    instance.addProperty("HealthState", health.health);
    // The subsystem states ride behind the overall one untranslated; clients
    // that know the controller's values read them from there.
    instance.addProperty(
        "OperationalStatus",
        VDArrayValues::uint16s({health.operational,
                                static_cast<unsigned short>(enclosure.getFanStatus()),
                                static_cast<unsigned short>(enclosure.getPowerSupplyStatus()),
                                static_cast<unsigned short>(enclosure.getTempSensorStatus())}));
    FixedStateProperties::enabled(instance);
    instance.addProperty("Dedicated", VDArrayValues::uint16s({2}));
    instance.addProperty("OtherDedicatedDescriptions", VDArrayValues::strings({"SDE"}));
    return instance;
}

} // namespace QLN
