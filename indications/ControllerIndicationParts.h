#pragma once
// What the two controller indication classes share: the controller's
// identity on the alert, the three variables and the OIDs of the controller
// table.
#include "IndicationFrame.h"

namespace QLN::ControllerIndicationParts {

// The identity setters in their order, each only when its text is there.
void setIdentity(IndicationFrame& frame, std::string const& controllerText,
                 std::string const& firmwareVersion, std::string const& manufacturer,
                 std::string const& serialNumber, std::string const& model);

// Logs the variables, then adds the three arrays when the change name is there.
void addVariables(Logger& logger, CmpiCpp::CmpiInstance& instance, std::string const& changeName,
                  unsigned int cacheSize, std::string const& cacheSerialNumber);

// Column `column` of the controller table, row of the controller.
std::vector<std::uint32_t> controllerOid(std::uint32_t column, unsigned int controllerIndex);

} // namespace QLN::ControllerIndicationParts
