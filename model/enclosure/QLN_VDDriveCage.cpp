#include "QLN_VDDriveCage.h"

#include "CmpiBroker.h"
#include "EnclosureSnapshot.h"
#include "QLNUtil.h"
#include "VeldraStorageFunctions.h"

namespace {
char const* const className = "QLN_VDDriveCage";
char const* const missingText = "getInstance, findEnclosureInVector could not find enclosure";
char const* const notAvailable = "N/A";
} // namespace

namespace QLN {

QLN_VDDriveCage::QLN_VDDriveCage(Logger& logger, std::string const& nameSpace,
                                 unsigned int controllerIndex, VeldraEnclosure const& enclosure,
                                 VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller),
      _boxNumber(enclosure.getBoxNumber()),
      _enclosureBoxNumber(static_cast<int>(enclosure.getEnclosureBoxNumber())),
      _serialNumber(enclosure.getSerialNumber()), _paths(enclosure.getLastAllPhysicalPaths()),
      _portString(pathsToPortStr(_paths)) {}

std::string QLN_VDDriveCage::getTag() const {
    // The enclosure box number, not the box number shown to people: only the
    // former is unique on a controller.
    return std::string(className) + "-" + std::to_string(_controllerIndex) + "-" +
           std::to_string(_enclosureBoxNumber);
}

CmpiCpp::CmpiObjectPath QLN_VDDriveCage::getPath() const {
    return _pathByClassAndKey("Tag", getTag());
}

CmpiCpp::CmpiInstance QLN_VDDriveCage::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    VeldraEnclosure const enclosure = EnclosureSnapshot::find(
        _controller, static_cast<u32>(_enclosureBoxNumber), _logger, missingText);

    std::string const serial = EnclosureSnapshot::orNotAvailable(enclosure.getSerialNumber());
    instance.addProperty("CreationClassName", className);
    instance.addProperty("Tag", getTag());
    instance.addProperty("SerialNumber", serial);
    instance.addProperty("Name", serial);
    instance.addProperty("ElementName", "Port: " + pathsToPortStr(enclosure.getPaths()));
    // Unlike the enclosure's package, the cage leaves unknown texts out.
    std::string const manufacturer = enclosure.getManufacturer();
    if (!manufacturer.empty())
        instance.addProperty("Manufacturer", manufacturer);
    std::string const model = enclosure.getModel();
    if (!model.empty())
        instance.addProperty("Model", model);
    instance.addProperty("PartNumber", notAvailable);
    instance.addProperty("Version", notAvailable);
    instance.addProperty("Description", "Veldra Drive Cage");
    instance.addProperty("RemovalConditions", static_cast<unsigned short>(2));
    instance.addProperty("BackplaneSpeed",
                         static_cast<unsigned short>(enclosure.getBackplaneSpeed()));
    instance.addProperty("DriveBays", static_cast<unsigned int>(enclosure.getDriveBays()));
    instance.addProperty("DuplexLocation",
                         static_cast<unsigned short>(enclosure.getDuplexLocation()));
    return instance;
}

} // namespace QLN
