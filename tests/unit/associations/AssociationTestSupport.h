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

// This test binary links no model class, so each end class that the typed
// associations name is a stand-in here: an End with its class name.
#define ASSOCTEST_END(Name)                                                                        \
    namespace QLN {                                                                                \
    class Name : public assoctest::End {                                                           \
    public:                                                                                        \
        explicit Name(std::string key) : End(#Name, std::move(key)) {}                             \
    };                                                                                             \
    }
ASSOCTEST_END(QLN_PCIDevice)
ASSOCTEST_END(QLN_VDArrayController)
ASSOCTEST_END(QLN_VDArraySystem)
ASSOCTEST_END(QLN_VDDAPort)
ASSOCTEST_END(QLN_VDFirmware)
ASSOCTEST_END(QLN_VDPhysicalPackage)
ASSOCTEST_END(QLN_VDPortController)
ASSOCTEST_END(QLN_VDPrimordialPool)
ASSOCTEST_END(QLN_VDSCSIProtocolEndpoint)
ASSOCTEST_END(QLN_VDSoftwareIdentityDriver)
ASSOCTEST_END(QLN_VDStoragePool)
ASSOCTEST_END(QLN_VDStorageSpecificCollection)
ASSOCTEST_END(QLN_VDDiskDrive)
ASSOCTEST_END(QLN_VDDiskDriveFirmware)
ASSOCTEST_END(QLN_VDStorageVolume)
ASSOCTEST_END(QLN_VDSCSIProtocolController)
ASSOCTEST_END(QLN_VDStorageSetting)
ASSOCTEST_END(QLN_VDISASSCSIProtocolEndpoint)
ASSOCTEST_END(QLN_VDTSASSCSIProtocolEndpoint)
ASSOCTEST_END(QLN_VDStorageExtent)
