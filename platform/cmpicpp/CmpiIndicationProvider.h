#pragma once
// A provider of indications: the filter operations and the switch.
#include "CmpiContext.h"
#include "CmpiName.h"
#include "CmpiObjectPath.h"
#include "CmpiProvider.h"
#include "CmpiSelectExp.h"
#include "cmpift.h"
#include <string>

namespace CmpiCpp {

class CmpiIndicationProvider : public virtual CmpiProvider {
public:
    CmpiIndicationProvider();
    ~CmpiIndicationProvider() override;

    // Returning normally authorizes the filter; throwing CmpiStatus refuses it.
    virtual void authorizeFilter(CmpiContext const& context, CmpiSelectExp const& filter,
                                 CmpiName const& className, CmpiObjectPath const& path,
                                 std::string const& owner) = 0;
    virtual void mustPoll(CmpiContext const& context, CmpiSelectExp const& filter,
                          CmpiName const& className, CmpiObjectPath const& path) = 0;
    virtual void activateFilter(CmpiContext const& context, CmpiSelectExp const& filter,
                                CmpiName const& className, CmpiObjectPath const& path,
                                bool firstActivation) = 0;
    virtual void deActivateFilter(CmpiContext const& context, CmpiSelectExp const& filter,
                                  CmpiName const& className, CmpiObjectPath const& path,
                                  bool lastActivation) = 0;
    virtual void enableIndications() = 0;
    virtual void disableIndications() = 0;

    CMPIIndicationMI* getIndicationMI();

private:
    CMPIIndicationMI* _indicationMI;
};

} // namespace CmpiCpp
