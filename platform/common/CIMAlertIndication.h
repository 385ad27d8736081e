#pragma once
// An alert: the properties that CIM_AlertIndication defines. Each setter
// fills the property of its own name.
#include "CIMIndication.h"

namespace QLN {

class CIMAlertIndication : public CIMIndication {
public:
    CIMAlertIndication(Logger& logger, std::string const& className, std::string const& nameSpace);

    void setAlertingManagedElement(std::string const& path);
    void setAlertingElementFormat(int format);
    void setDescription(std::string const& text);
    void setEventID(std::string const& id);
    void setAlertType(int type);
    void setProviderName(std::string const& name);
    // RecommendedActions is an array in CIM; ours always hold one text.
    void setRecommendedActions(std::string const& actions);
    void setSystemCreationClassName(std::string const& name);
};

} // namespace QLN
