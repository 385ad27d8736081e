#include "QLN_VDArrayControllerLocation.h"

#include "CmpiArray.h"
#include "CmpiBroker.h"
#include "IdentityHelpers.h"
#include "QLNPhysloc.h"
#include "QLNUtil.h"

namespace {

char const* const className = "QLN_VDArrayControllerLocation";

} // namespace

namespace QLN {

QLN_VDArrayControllerLocation::QLN_VDArrayControllerLocation(Logger& logger,
                                                             std::string const& nameSpace,
                                                             unsigned int controllerIndex,
                                                             VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller) {}

CmpiCpp::CmpiObjectPath QLN_VDArrayControllerLocation::getPath() const {
    VeldraControllerData data;
    _controller->getLastVDData(data);
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiObjectPath path = CmpiCpp::makeCmpiObjectPath(broker, _namespace, className);
    path.setHost(QLNUtil::getHostName());
    // Name is the only key of a location: the tag keeps controllers apart,
    // external ones included (their tag carries the controller's number).
    path.addKey("Name", std::string(className) + "-" +
                            getControllerTag(data, static_cast<int>(_controllerIndex)));
    return path;
}

CmpiCpp::CmpiInstance QLN_VDArrayControllerLocation::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiObjectPath path = getPath();
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, path);
    VeldraControllerData data;
    _controller->getLastVDData(data);

    instance.addProperty("Name", path.getKey("Name"));
    physloc_t location = BMC_physloc_NULL;
    bool located = data.getPhysloc(location) == 0;
    instance.addProperty("PhysicalPosition", QLNPhysloc::physlocToHWLocation(location));
    // The controller's own wording: no "External", as its ElementName has none.
    std::string display =
        (located ? (QLNPhysloc::kindOf(location) == static_cast<int>(QLNPhysloc::Kind::PciSlot)
                        ? "Veldra in "
                        : "Veldra ")
                 : "Veldra Unknown ") +
        QLNPhysloc::physlocToHWLocation(location);
    instance.addProperty("Caption", display);
    instance.addProperty("Description", display);
    instance.addProperty("ElementName", display);
    // The parts of the location, outermost first; only when the location is known.
    if (located) {
        std::vector<std::string> names;
        std::vector<unsigned short> numbers;
        QLNPhysloc::createLocationInfoVectors(location, names, numbers);
        CmpiCpp::CmpiArray codes =
            CmpiCpp::makeCmpiArray(broker, static_cast<int>(numbers.size()), CMPI_uint16);
        CmpiCpp::CmpiArray texts =
            CmpiCpp::makeCmpiArray(broker, static_cast<int>(names.size()), CMPI_string);
        for (unsigned int i = 0; i < numbers.size(); ++i)
            codes.setElementAt(i, numbers[i]);
        for (unsigned int i = 0; i < names.size(); ++i)
            texts.setElementAt(i, names[i]);
        instance.addProperty("LocationInformation", codes);
        instance.addProperty("LocationInfoDesc", texts);
    }
    return instance;
}

} // namespace QLN
