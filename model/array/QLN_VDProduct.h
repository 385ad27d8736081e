#pragma once
// The controller as a product that was bought: model, maker and the
// number that identifies the piece, tied to the array system's package.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDProduct : public CmpiManagedInstance {
public:
    QLN_VDProduct(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                  VeldraController* controller);
    ~QLN_VDProduct() override;

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
