#pragma once
// Where the array system is, for people and for tools that sort by slot:
// the location of the controller, named by its location tag.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDArraySystemLocation : public CmpiManagedInstance {
public:
    QLN_VDArraySystemLocation(Logger& logger, std::string const& nameSpace,
                              unsigned int controllerIndex, VeldraController* controller);
    ~QLN_VDArraySystemLocation() override;

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
