#pragma once
// An end for association tests: a managed instance of a given class with one
// key, and the host name pinned so that paths can be compared as text.
#include "CmpiManagedInstance.h"
#include "FrameworkConfig.h"

#include <cstdlib>
#include <string>

namespace assoctest {

class End : public QLN::CmpiManagedInstance {
public:
    End(std::string className, std::string key)
        : _className(std::move(className)), _key(std::move(key)) {}
    CmpiCpp::CmpiObjectPath getPath() const override {
        CmpiCpp::CmpiObjectPath path("root/mwq", _className);
        path.setHost("assoc-host");
        path.addKey("CreationClassName", _className);
        path.addKey("Name", _key);
        return path;
    }
    CmpiCpp::CmpiInstance getInstance() const override { return CmpiCpp::CmpiInstance(getPath()); }
    CmpiCpp::CmpiName getClassName() const override { return _className; }

private:
    std::string _className;
    std::string _key;
};

inline void pinHostName() {
    ::setenv("VELDRA_HOSTNAME", "assoc-host", 1);
    ::setenv("VELDRA_LOG_LEVEL", "warn", 1);
    QLN::FrameworkConfig::reload();
}

} // namespace assoctest
