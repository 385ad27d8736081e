#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDSCSIProtocolController;
class QLN_VDStorageVolume;

class QLN_VDSCSIProtocolControllerStorageVolume
    : public TypedAssociation<QLN_VDSCSIProtocolControllerStorageVolume,
                              QLN_VDSCSIProtocolController, QLN_VDStorageVolume> {
public:
    static constexpr Shape shape{"QLN_VDSCSIProtocolControllerStorageVolume", "Antecedent",
                                 "Dependent", WrittenFirst::SecondEnd};

    // A template only so that it is compiled where the ends are complete.
    template <int = 0>
    QLN_VDSCSIProtocolControllerStorageVolume(Logger& logger, std::string const& nameSpace,
                                              QLN_VDSCSIProtocolController* first,
                                              QLN_VDStorageVolume* second,
                                              unsigned int deviceNumber)
        : TypedAssociation(logger, nameSpace, first, second), _deviceNumber(deviceNumber) {}

protected:
    void _addExtraProperties(CmpiCpp::CmpiInstance& instance) const override;

private:
    unsigned int _deviceNumber;
};

} // namespace QLN
