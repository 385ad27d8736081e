#pragma once

#include <string>
#include <utility>
#include <vector>

#include "CimInstance.h"
#include "CimObjectPath.h"
#include "CimValue.h"
#include "MethodResult.h"

namespace Cimom {

// The operations the broker's up-calls are routed to (the provider manager
// implements them). Failures are thrown as CimError. A null property list
// means all properties.
class BrokerUpcalls {
public:
    using PropertyList = std::vector<std::string>;
    using Args = std::vector<std::pair<std::string, CimValue>>;

    virtual ~BrokerUpcalls() = default;

    virtual std::vector<CimObjectPath> enumerateInstanceNames(CimObjectPath const& classPath) = 0;
    virtual std::vector<CimInstance> enumerateInstances(CimObjectPath const& classPath,
                                                        PropertyList const* propertyList) = 0;
    virtual CimInstance getInstance(CimObjectPath const& path,
                                    PropertyList const* propertyList) = 0;
    virtual std::vector<CimInstance>
    associators(CimObjectPath const& path, std::string const& assocClass,
                std::string const& resultClass, std::string const& role,
                std::string const& resultRole, PropertyList const* propertyList) = 0;
    virtual std::vector<CimObjectPath> associatorNames(CimObjectPath const& path,
                                                       std::string const& assocClass,
                                                       std::string const& resultClass,
                                                       std::string const& role,
                                                       std::string const& resultRole) = 0;
    virtual std::vector<CimInstance> references(CimObjectPath const& path,
                                                std::string const& resultClass,
                                                std::string const& role,
                                                PropertyList const* propertyList) = 0;
    virtual std::vector<CimObjectPath> referenceNames(CimObjectPath const& path,
                                                      std::string const& resultClass,
                                                      std::string const& role) = 0;
    virtual MethodResult invokeMethod(CimObjectPath const& path, std::string const& method,
                                      Args const& inArgs) = 0;
};

} // namespace Cimom
