#pragma once
// What every class that speaks for one whole controller shares: the
// controller it reads, its index among the controllers, the namespace its
// paths live in, and a logger named after the class, which logs the
// instance's birth and end.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class ControllerManagedInstance : public CmpiManagedInstance {
public:
    ~ControllerManagedInstance() override;

    CmpiCpp::CmpiName getClassName() const override;

    unsigned int getControllerIndex() const { return _controllerIndex; }
    VeldraController* getController() const { return _controller; }

protected:
    // className must outlive the instance (the classes pass a literal).
    ControllerManagedInstance(Logger& logger, char const* className, std::string const& nameSpace,
                              unsigned int controllerIndex, VeldraController* controller);

    // The controller's data as the last read left it.
    VeldraControllerData _lastData() const;
    char const* _cimClassName() const { return _className; }
    // A path to this class on this host with one key only.
    CmpiCpp::CmpiObjectPath _pathByKey(char const* keyName, std::string const& keyValue) const;
    // The same keyed by CreationClassName first, then the class's own key.
    CmpiCpp::CmpiObjectPath _pathByClassAndKey(char const* keyName,
                                               std::string const& keyValue) const;
    // A location's path: CIM_Location keys on Name, here the class name, and
    // PhysicalPosition, which tells one location of the class from another.
    CmpiCpp::CmpiObjectPath _locationPath(std::string const& physicalPosition) const;

    std::string const _namespace;
    Logger _logger;
    unsigned int const _controllerIndex;
    VeldraController* const _controller;

private:
    CmpiCpp::CmpiObjectPath _hostPath() const;

    char const* _className;
};

} // namespace QLN
