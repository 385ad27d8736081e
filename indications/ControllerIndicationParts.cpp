#include "ControllerIndicationParts.h"

namespace QLN::ControllerIndicationParts {

namespace {
char const* const controllerPrefix = "Veldra Controller:";
} // namespace

void setIdentity(IndicationFrame& frame, std::string const& controllerText,
                 std::string const& firmwareVersion, std::string const& manufacturer,
                 std::string const& serialNumber, std::string const& model) {
    frame.setPresent(&MWAlertIndication::setHWLogicalLocation, controllerText);
    frame.setPresent(&MWAlertIndication::setHWFirmwareVersion, firmwareVersion, controllerPrefix);
    frame.setPresent(&MWAlertIndication::setHWManufacturer, manufacturer);
    frame.setPresent(&MWAlertIndication::setHWSerialNumber, serialNumber, controllerPrefix);
    frame.setPresent(&MWAlertIndication::setDeviceModel, model);
}

void addVariables(Logger& logger, CmpiCpp::CmpiInstance& instance, std::string const& changeName,
                  unsigned int cacheSize, std::string const& cacheSerialNumber) {
    logger.info("set variable properties: Description: %s CacheSizeTotal: %d CacheSerialNumber: %s",
                changeName.c_str(), static_cast<int>(cacheSize), cacheSerialNumber.c_str());
    IndicationFrame::addVariables(instance, {{"FailureDescription", 1, changeName},
                                             {"CacheSizeTotal", 5, std::to_string(cacheSize)},
                                             {"CacheSerialNumber", 1, cacheSerialNumber}});
}

std::vector<std::uint32_t> controllerOid(std::uint32_t column, unsigned int controllerIndex) {
    return enterpriseOid({3, 2, 2, 1, 1, column, controllerIndex});
}

} // namespace QLN::ControllerIndicationParts
