#pragma once
// A location of the controller, named by its location tag: the classes that
// place the array system and the controller's own package differ only in
// the words they show for people.
#include "ControllerManagedInstance.h"

#include <string>

namespace QLN {

class ControllerLocationInstance : public ControllerManagedInstance {
public:
    using DisplayText = std::string (*)(VeldraControllerData const&);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

protected:
    ControllerLocationInstance(Logger& logger, char const* className, std::string const& nameSpace,
                               unsigned int controllerIndex, VeldraController* controller,
                               DisplayText displayText);

private:
    DisplayText _displayText;
};

} // namespace QLN
