#include "CIMAlertIndication.h"

#include "CmpiArray.h"

namespace QLN {

CIMAlertIndication::CIMAlertIndication(Logger& logger, std::string const& className,
                                       std::string const& nameSpace)
    : CIMIndication(logger, className, nameSpace) {}

void CIMAlertIndication::setAlertingManagedElement(std::string const& path) {
    _set("AlertingManagedElement", path);
}

void CIMAlertIndication::setAlertingElementFormat(int format) {
    _set("AlertingElementFormat", static_cast<unsigned short>(format));
}

void CIMAlertIndication::setDescription(std::string const& text) {
    _set("Description", text);
}

void CIMAlertIndication::setEventID(std::string const& id) {
    _set("EventID", id);
}

void CIMAlertIndication::setAlertType(int type) {
    _set("AlertType", static_cast<unsigned short>(type));
}

void CIMAlertIndication::setProviderName(std::string const& name) {
    _set("ProviderName", name);
}

void CIMAlertIndication::setRecommendedActions(std::string const& actions) {
    CmpiCpp::CmpiArray array(1, CMPI_string);
    array.setElementAt(0, actions);
    _set("RecommendedActions", array);
}

void CIMAlertIndication::setSystemCreationClassName(std::string const& name) {
    _set("SystemCreationClassName", name);
}

} // namespace QLN
