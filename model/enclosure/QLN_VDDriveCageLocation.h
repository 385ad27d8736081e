#pragma once
// Where a drive cage sits: its controller and box, its place in a duplex
// enclosure, and the location parts.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"
#include "VeldraEnclosure.h"

#include <optional>
#include <string>

namespace QLN {

class QLN_VDDriveCageLocation : public CmpiManagedInstance {
public:
    QLN_VDDriveCageLocation(Logger& logger, std::string const& nameSpace,
                            unsigned int controllerIndex, VeldraEnclosure const& enclosure,
                            VeldraController* controller);
    ~QLN_VDDriveCageLocation() override;

    CmpiCpp::CmpiObjectPath getPath() const override;
    // Throws CmpiStatus with code 100 when the enclosure left the snapshot.
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;

    // "Non Duplex", "Duplex Top", "Duplex Bottom"; nothing for other values.
    static std::optional<std::string> duplexTagOf(int duplexLocation);

    int getEnclosureBoxNumber() const { return _enclosureBoxNumber; }
    unsigned int getControllerIndex() const { return _controllerIndex; }

private:
    std::string _name() const;

    std::string _namespace;
    Logger _logger;
    int _boxNumber;
    int _enclosureBoxNumber;
    unsigned int _controllerIndex;
    VeldraController* _controller;
};

} // namespace QLN
