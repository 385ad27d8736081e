#pragma once
// A device or endpoint of the controller scoped by the array system: the
// key is the class, the array system and one key of the class's own, and
// every instance opens with the same three scoping properties.
#include "ControllerManagedInstance.h"

#include <string>

namespace QLN {

class ControllerDeviceInstance : public ControllerManagedInstance {
public:
    CmpiCpp::CmpiObjectPath getPath() const override;

protected:
    // keyName must outlive the instance (the classes pass a literal).
    ControllerDeviceInstance(Logger& logger, char const* className, std::string const& nameSpace,
                             unsigned int controllerIndex, VeldraController* controller,
                             char const* keyName);

    // The value of the class's own key.
    virtual std::string _keyValue(VeldraControllerData const& data) const = 0;

    // The instance on this object's path, with CreationClassName,
    // SystemCreationClassName and SystemName set; the class adds the rest.
    CmpiCpp::CmpiInstance _newInstance(VeldraControllerData const& data) const;

private:
    char const* _keyName;
};

} // namespace QLN
