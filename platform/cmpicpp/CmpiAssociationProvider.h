#pragma once
// A provider of associations. An empty CmpiName stands for a filter that the
// client left out.
#include "CmpiContext.h"
#include "CmpiInstanceResult.h"
#include "CmpiName.h"
#include "CmpiObjectPath.h"
#include "CmpiObjectPathResult.h"
#include "CmpiProvider.h"
#include "cmpift.h"

namespace CmpiCpp {

class CmpiAssociationProvider : public virtual CmpiProvider {
public:
    CmpiAssociationProvider();
    ~CmpiAssociationProvider() override;

    virtual void associators(CmpiContext const& context, CmpiObjectPath const& path,
                             CmpiName const& assocClass, CmpiName const& resultClass,
                             CmpiName const& role, CmpiName const& resultRole,
                             char const** properties, CmpiInstanceResult& result) = 0;
    virtual void associatorNames(CmpiContext const& context, CmpiObjectPath const& path,
                                 CmpiName const& assocClass, CmpiName const& resultClass,
                                 CmpiName const& role, CmpiName const& resultRole,
                                 CmpiObjectPathResult& result) = 0;
    virtual void references(CmpiContext const& context, CmpiObjectPath const& path,
                            CmpiName const& resultClass, CmpiName const& role,
                            char const** properties, CmpiInstanceResult& result) = 0;
    virtual void referenceNames(CmpiContext const& context, CmpiObjectPath const& path,
                                CmpiName const& resultClass, CmpiName const& role,
                                CmpiObjectPathResult& result) = 0;

    CMPIAssociationMI* getAssociationMI();

private:
    CMPIAssociationMI* _associationMI;
};

} // namespace CmpiCpp
