#pragma once
// A provider of instances. getInstanceMI() gives the CMPI table that routes
// the object manager's calls here; see CmpiProvider for its lifetime.
#include "CmpiContext.h"
#include "CmpiInstance.h"
#include "CmpiInstanceResult.h"
#include "CmpiObjectPath.h"
#include "CmpiObjectPathResult.h"
#include "CmpiProvider.h"
#include "cmpift.h"
#include <string>

namespace CmpiCpp {

class CmpiInstanceProvider : public virtual CmpiProvider {
public:
    CmpiInstanceProvider();
    ~CmpiInstanceProvider() override;

    virtual void enumInstanceNames(CmpiContext const& context, CmpiObjectPath const& path,
                                   CmpiObjectPathResult& result) = 0;
    virtual void enumInstances(CmpiContext const& context, CmpiObjectPath const& path,
                               char const** properties, CmpiInstanceResult& result) = 0;
    virtual void getInstance(CmpiContext const& context, CmpiObjectPath const& path,
                             char const** properties, CmpiInstanceResult& result) = 0;
    // The write operations and queries are not supported unless overridden:
    // each throws CmpiStatus(CMPI_RC_ERR_NOT_SUPPORTED).
    virtual void createInstance(CmpiContext const& context, CmpiObjectPath const& path,
                                CmpiInstance const& instance, CmpiObjectPathResult& result);
    virtual void modifyInstance(CmpiContext const& context, CmpiObjectPath const& path,
                                CmpiInstance const& instance, char const** properties);
    virtual void deleteInstance(CmpiContext const& context, CmpiObjectPath const& path);
    virtual void execQuery(CmpiContext const& context, CmpiObjectPath const& path,
                           std::string const& query, std::string const& language,
                           CmpiInstanceResult& result);

    CMPIInstanceMI* getInstanceMI();

private:
    CMPIInstanceMI* _instanceMI;
};

} // namespace CmpiCpp
