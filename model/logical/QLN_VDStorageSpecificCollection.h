#pragma once
// The storage group of the host: one instance for all array systems, whose
// group status is the worst of theirs. The worker recomputes it on each pass.
#include "CmpiContext.h"
#include "CmpiManagedInstance.h"
#include "Logger.h"

#include <string>
#include <vector>

namespace QLN {

class QLN_VDArraySystem;

class QLN_VDStorageSpecificCollection : public CmpiManagedInstance {
public:
    QLN_VDStorageSpecificCollection(Logger& logger, std::string const& nameSpace);
    ~QLN_VDStorageSpecificCollection() override;

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;

    // Folds the array systems' consolidated statuses into the group status and
    // logs a change. The context is the worker's; nothing is sent from here.
    void manageDynamic(bool indicationsEnabled, CmpiCpp::CmpiContext const& context,
                       std::vector<QLN_VDArraySystem*> const& arraySystems);

    unsigned int getStatus() const { return _status; }

private:
    std::string _instanceId() const;

    std::string _namespace;
    Logger _logger;
    // Set until the group status first leaves OK.
    bool _firstStatus;
    unsigned int _status;
};

} // namespace QLN
