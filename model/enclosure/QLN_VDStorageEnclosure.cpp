#include "QLN_VDStorageEnclosure.h"

#include "CmpiBroker.h"
#include "EnclosureSnapshot.h"
#include "IdentityHelpers.h"
#include "QLNUtil.h"
#include "VeldraStorageFunctions.h"

namespace {
char const* const className = "QLN_VDStorageEnclosure";
char const* const missingText = "getInstance, findEnclosureInVector could not find enclosure";
char const* const notAvailable = "N/A";
} // namespace

namespace QLN {

QLN_VDStorageEnclosure::QLN_VDStorageEnclosure(Logger& logger, std::string const& nameSpace,
                                               unsigned int controllerIndex,
                                               VeldraEnclosure const& enclosure,
                                               VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller),
      _serialNumber(enclosure.getSerialNumber()),
      _boxNumber(static_cast<unsigned int>(enclosure.getBoxNumber())),
      _enclosureBoxNumber(enclosure.getEnclosureBoxNumber()),
      _portString(pathsToPortStr(enclosure.getLastAllPhysicalPaths())),
      _paths(enclosure.getLastAllPhysicalPaths()) {}

unsigned short QLN_VDStorageEnclosure::locationOf(std::string const& userText) {
    // A deliberately crude test over the whole text: any capital I (as in a
    // port "1I") makes the box internal, E or X external.
    if (userText.find('I') != std::string::npos)
        return 1;
    if (userText.find_first_of("EX") != std::string::npos)
        return 2;
    return 0;
}

CmpiCpp::CmpiObjectPath QLN_VDStorageEnclosure::getPath() const {
    return _pathByClassAndKey("Tag", enclosureTag(_controllerIndex, _enclosureBoxNumber));
}

CmpiCpp::CmpiInstance QLN_VDStorageEnclosure::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    VeldraEnclosure const enclosure =
        EnclosureSnapshot::find(_controller, _enclosureBoxNumber, _logger, missingText);

    std::string const userText = pathsToUserStr(enclosure.getPaths(), -1);
    instance.addProperty("CreationClassName", className);
    instance.addProperty("Tag", enclosureTag(_controllerIndex, _enclosureBoxNumber));
    instance.addProperty("SerialNumber",
                         EnclosureSnapshot::orNotAvailable(enclosure.getSerialNumber()));
    instance.addProperty("ElementName", userText);
    instance.addProperty("Name", userText);
    instance.addProperty("Manufacturer",
                         EnclosureSnapshot::orNotAvailable(enclosure.getManufacturer()));
    instance.addProperty("Model", EnclosureSnapshot::orNotAvailable(enclosure.getModel()));
    instance.addProperty("PartNumber", notAvailable);
    instance.addProperty("Version", notAvailable);
    instance.addProperty("Description", "Veldra Enclosure Physical Package");
    instance.addProperty("RemovalConditions", static_cast<unsigned short>(2));
    instance.addProperty("Location", locationOf(userText));
    return instance;
}

} // namespace QLN
