#pragma once

#include <string>
#include <utility>
#include <vector>

#include "CimInstance.h"
#include "CimObjectPath.h"
#include "CimValue.h"
#include "MethodResult.h"

// The operations the broker's up-calls are routed to (the provider manager
// implements them). Failures are thrown as CimError. A null property list
// means all properties.
class BrokerUpcalls {
public:
    using PropertyList = std::vector<std::string>;
    using Args = std::vector<std::pair<std::string, CimValue>>;

    virtual ~BrokerUpcalls() = default;

    virtual std::vector<CimObjectPath> enumerateInstanceNames(const CimObjectPath& classPath) = 0;
    virtual std::vector<CimInstance> enumerateInstances(const CimObjectPath& classPath,
                                                        const PropertyList* propertyList) = 0;
    virtual CimInstance getInstance(const CimObjectPath& path,
                                    const PropertyList* propertyList) = 0;
    virtual std::vector<CimInstance>
    associators(const CimObjectPath& path, const std::string& assocClass,
                const std::string& resultClass, const std::string& role,
                const std::string& resultRole, const PropertyList* propertyList) = 0;
    virtual std::vector<CimObjectPath> associatorNames(const CimObjectPath& path,
                                                       const std::string& assocClass,
                                                       const std::string& resultClass,
                                                       const std::string& role,
                                                       const std::string& resultRole) = 0;
    virtual std::vector<CimInstance> references(const CimObjectPath& path,
                                                const std::string& resultClass,
                                                const std::string& role,
                                                const PropertyList* propertyList) = 0;
    virtual std::vector<CimObjectPath> referenceNames(const CimObjectPath& path,
                                                      const std::string& resultClass,
                                                      const std::string& role) = 0;
    virtual MethodResult invokeMethod(const CimObjectPath& path, const std::string& method,
                                      const Args& inArgs) = 0;
};
