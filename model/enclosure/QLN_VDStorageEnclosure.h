#pragma once
// An enclosure behind a controller, as a physical package. It is known by its
// enclosure box number (not its serial number) and reads its values from the
// controller's last enclosure snapshot at each request.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"
#include "VeldraEnclosure.h"
#include "VeldraPhysicalPath.h"

#include <string>
#include <vector>

namespace QLN {

class QLN_VDStorageEnclosure : public CmpiManagedInstance {
public:
    QLN_VDStorageEnclosure(Logger& logger, std::string const& nameSpace,
                           unsigned int controllerIndex, VeldraEnclosure const& enclosure,
                           VeldraController* controller);
    ~QLN_VDStorageEnclosure() override;

    // Built from the identity alone: usable after the enclosure has gone.
    CmpiCpp::CmpiObjectPath getPath() const override;
    // Throws CmpiStatus with code 100 when the enclosure left the snapshot.
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;

    // 1 internal, 2 external, 0 unknown, read from letters of the user text.
    static unsigned short locationOf(std::string const& userText);

    std::string const& getSerialNumber() const { return _serialNumber; }
    unsigned int getBoxNumber() const { return _boxNumber; }
    unsigned int getEnclosureBoxNumber() const { return _enclosureBoxNumber; }
    std::string const& getPortString() const { return _portString; }
    std::vector<VeldraPhysicalPath> const& getPaths() const { return _paths; }
    unsigned int getControllerIndex() const { return _controllerIndex; }
    VeldraController* getController() const { return _controller; }

private:
    std::string _namespace;
    Logger _logger;
    std::string _serialNumber;
    unsigned int _boxNumber;
    unsigned int _enclosureBoxNumber;
    std::string _portString;
    std::vector<VeldraPhysicalPath> _paths;
    unsigned int _controllerIndex;
    VeldraController* _controller;
};

} // namespace QLN
