#pragma once
// The controller's own hardware: the card, module or board component that
// realizes the array controller. A part of the array system's package.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDArrayControllerPhysicalPackage : public CmpiManagedInstance {
public:
    QLN_VDArrayControllerPhysicalPackage(Logger& logger, std::string const& nameSpace,
                                         unsigned int controllerIndex,
                                         VeldraController* controller);
    ~QLN_VDArrayControllerPhysicalPackage() override;

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;

    unsigned int getControllerIndex() const { return _controllerIndex; }
    VeldraController* getController() const { return _controller; }

private:
    std::string _namespace;
    Logger _logger;
    unsigned int _controllerIndex;
    VeldraController* _controller;
};

} // namespace QLN
