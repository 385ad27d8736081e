#pragma once
// The graph code passes the exact end classes: QLN_VDSCSIProtocolController and
// QLN_VDStorageVolume.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDSCSIProtocolControllerStorageVolume : public VeldraAssociation {
public:
    QLN_VDSCSIProtocolControllerStorageVolume(Logger& logger, std::string const& nameSpace,
                                              CmpiManagedInstance* scsiProtocolController,
                                              CmpiManagedInstance* storageVolume,
                                              unsigned int deviceNumber);

protected:
    void _addExtraProperties(CmpiCpp::CmpiInstance& instance) const override;

private:
    unsigned int _deviceNumber;
};

} // namespace QLN
