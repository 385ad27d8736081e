#include "QLN_VDProduct.h"

#include "CmpiBroker.h"
#include "IdentityHelpers.h"
#include "QLNUtil.h"

namespace {

char const* const className = "QLN_VDProduct";
// What a key says when the controller cannot tell; a key may not be empty.
char const* const unknownText = "UNKNOWN";

std::string textOr(VeldraControllerData const& data,
                   int (VeldraControllerData::*getter)(std::string&) const, char const* fallback) {
    std::string value;
    if ((data.*getter)(value) != 0 || value.empty()) {
        return fallback;
    }
    return value;
}

} // namespace

namespace QLN {

QLN_VDProduct::QLN_VDProduct(Logger& logger, std::string const& nameSpace,
                             unsigned int controllerIndex, VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller) {}

CmpiCpp::CmpiObjectPath QLN_VDProduct::getPath() const {
    VeldraControllerData data;
    _controller->getLastVDData(data);
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiObjectPath path = CmpiCpp::makeCmpiObjectPath(broker, _namespace, className);
    path.setHost(QLNUtil::getHostName());
    path.addKey("Name", textOr(data, &VeldraControllerData::getModel, unknownText));
    // The piece itself: the serial number, or the location tag without one,
    // so that two products of one model stay apart.
    path.addKey("IdentifyingNumber", getControllerName(data, static_cast<int>(_controllerIndex)));
    path.addKey("Vendor", textOr(data, &VeldraControllerData::getManufacturer, unknownText));
    // Hardware has no product version of its own; firmware is its own class.
    path.addKey("Version", "N/A");
    return path;
}

CmpiCpp::CmpiInstance QLN_VDProduct::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiObjectPath path = getPath();
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, path);
    VeldraControllerData data;
    _controller->getLastVDData(data);

    instance.addProperty("Name", path.getKey("Name"));
    instance.addProperty("IdentifyingNumber", path.getKey("IdentifyingNumber"));
    instance.addProperty("Vendor", path.getKey("Vendor"));
    instance.addProperty("Version", path.getKey("Version"));
    instance.addProperty("ElementName", getControllerDisplayName(data));
    instance.addProperty("Caption", "Veldra Array Controller");
    instance.addProperty("Description", "Veldra Array Controller Product");
    return instance;
}

} // namespace QLN
