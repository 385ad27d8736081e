#pragma once
// How a disk's status reads in CIM: HealthState, OperationalStatus and
// StatusDescriptions, shared by the disk and its extent. The extent passes
// both switches off, so a worn SSD or an unauthenticated carrier shows there
// as unknown.
#include "CmpiInstance.h"
#include "VeldraTypes.h"

#include <string>
#include <vector>

namespace QLN {

class DiskStatusRow {
public:
    // `gasGauge`: the disk reports SSD wear; `carrierAuthentication`: the
    // controller authenticates drive carriers. Each unlocks the row of the
    // status that only it can explain.
    static DiskStatusRow of(VeldraPhysicalDiskStatusEnum status, bool gasGauge,
                            bool carrierAuthentication);

    // HealthState first, then the two arrays.
    void addTo(CmpiCpp::CmpiInstance& instance) const;

    unsigned short healthState() const { return _healthState; }
    std::vector<unsigned short> const& operationalStatus() const { return _operationalStatus; }
    std::vector<std::string> const& descriptions() const { return _descriptions; }

private:
    DiskStatusRow(unsigned short healthState, std::vector<unsigned short> operationalStatus,
                  std::vector<std::string> descriptions);

    unsigned short _healthState;
    std::vector<unsigned short> _operationalStatus;
    std::vector<std::string> _descriptions;
};

} // namespace QLN
