#include "DiskStatusRow.h"

#include "CmpiArray.h"
#include "CmpiBroker.h"
#include "QLNUtil.h"

namespace {

// CIM OperationalStatus values.
unsigned short const opOk = 2;
unsigned short const opDegraded = 3;
unsigned short const opPredictiveFailure = 5;
unsigned short const opError = 6;
unsigned short const opUnknown = 0;
// CIM HealthState values.
unsigned short const healthOk = 5;
unsigned short const healthDegraded = 10;
unsigned short const healthCritical = 25;
unsigned short const healthUnknown = 0;

char const* const degraded = "Physical Disk is degraded.";
char const* const operating = "Physical Disk is operating properly";
char const* const predicted = "Physical Disk is predicted to fail.";
char const* const failed = "Physical Disk has failed.";

} // namespace

namespace QLN {

DiskStatusRow::DiskStatusRow(unsigned short healthState,
                             std::vector<unsigned short> operationalStatus,
                             std::vector<std::string> descriptions)
    : _healthState(healthState), _operationalStatus(std::move(operationalStatus)),
      _descriptions(std::move(descriptions)) {}

DiskStatusRow DiskStatusRow::of(VeldraPhysicalDiskStatusEnum status, bool gasGauge,
                                bool carrierAuthentication) {
    // The extended statuses carry their own value as a vendor-range second element.
    auto const own = static_cast<unsigned short>(status & 0xFFFF);
    switch (status) {
    case PD_STATUS_FAILED_ALL_PATHS:
        // Same vendor value as a single-path failure on purpose: the first
        // element tells the two apart.
        return {healthCritical,
                {opError, static_cast<unsigned short>(PD_STATUS_ONE_PATH_FAILED)},
                {failed, "Physical Disk has had a failure on all of its paths."}};
    case PD_STATUS_REBUILDING:
        return {healthOk, {opOk, own}, {operating, "Physical Disk data is being rebuilt."}};
    case PD_STATUS_ERASE_QUEUED:
        return {healthDegraded,
                {opDegraded, own},
                {degraded, "Physical Disk has secure erase queued."}};
    case PD_STATUS_ERASING:
        return {healthDegraded,
                {opDegraded, own},
                {degraded, "Physical Disk has secure erase in progress."}};
    case PD_STATUS_ERASE_DONE:
        return {healthDegraded,
                {opDegraded, own},
                {degraded, "Physical Disk has completed secure erase."}};
    case PD_STATUS_ONE_PATH_FAILED:
        return {healthDegraded,
                {opDegraded, own},
                {degraded, "Physical Disk has had a failure on one of its paths."}};
    case PD_STATUS_EXTENDED_UNKNOWN:
        return {healthDegraded,
                {opDegraded, own},
                {degraded, "Physical Disk has unknown extended status."}};
    case PD_STATUS_SSD_WORN_OUT:
        if (gasGauge)
            return {healthDegraded,
                    {opPredictiveFailure, own},
                    {predicted, "A Solid State wear out has occurred."}};
        break;
    case PD_STATUS_NOT_AUTHENTICATED:
        if (carrierAuthentication)
            return {healthDegraded,
                    {opDegraded, own},
                    {"Physical Disk has Degraded.",
                     "The physical drive was not able to be authenticated and could not be "
                     "validated."}};
        break;
    case PD_STATUS_OK:
        return {healthOk, {opOk}, {operating}};
    case PD_STATUS_PREDICTIVE_FAILURE:
        return {healthDegraded, {opPredictiveFailure}, {predicted}};
    case PD_STATUS_FAILED:
        return {healthCritical, {opError}, {failed}};
    case PD_STATUS_UNKNOWN:
        break;
    }
    // Also every value the enumeration does not name.
    return {healthUnknown, {opUnknown}, {"Physical Disk Unknown"}};
}

void DiskStatusRow::addTo(CmpiCpp::CmpiInstance& instance) const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiArray operational =
        CmpiCpp::makeCmpiArray(broker, static_cast<int>(_operationalStatus.size()), CMPI_uint16);
    for (unsigned int i = 0; i < _operationalStatus.size(); ++i)
        operational.setElementAt(i, _operationalStatus[i]);
    CmpiCpp::CmpiArray descriptions =
        CmpiCpp::makeCmpiArray(broker, static_cast<int>(_descriptions.size()), CMPI_string);
    for (unsigned int i = 0; i < _descriptions.size(); ++i)
        descriptions.setElementAt(i, _descriptions[i]);
    instance.addProperty("HealthState", _healthState);
    instance.addProperty("OperationalStatus", operational);
    instance.addProperty("StatusDescriptions", descriptions);
}

} // namespace QLN
