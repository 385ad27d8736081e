#pragma once
// The software identities that live on a disk: the drive's own firmware and
// the two programs of an authenticated drive carrier. They share one shape
// and differ in their texts and in where the version comes from.
#include "DiskCompanion.h"

namespace QLN {

class DiskFirmwareIdentity : public DiskCompanion {
public:
    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

protected:
    // `title`: Caption, Name, Description and ElementName; `statusText`:
    // the one StatusDescriptions element.
    DiskFirmwareIdentity(Logger& logger, std::string const& nameSpace, char const* className,
                         char const* title, char const* statusText, unsigned int controllerIndex,
                         VeldraPhysicalDisk const& disk, VeldraController* controller);

    virtual std::string _version(VeldraPhysicalDisk const& disk) const = 0;

private:
    std::string _instanceId() const;

    char const* _title;
    char const* _statusText;
};

} // namespace QLN
