#pragma once
// A plain managed instance keyed by one Name; it counts its destructions and
// can be told to fail its getInstance.
#include "CmpiManagedInstance.h"
#include "CmpiStatus.h"

#include <atomic>
#include <string>

class TestInstance : public QLN::CmpiManagedInstance {
public:
    TestInstance(std::string className, std::string name, std::atomic<int>* destroyed = nullptr)
        : _className(std::move(className)), _name(std::move(name)), _destroyed(destroyed) {}
    ~TestInstance() override {
        if (_destroyed) {
            ++*_destroyed;
        }
    }

    static CmpiCpp::CmpiObjectPath pathOf(std::string const& className, std::string const& name) {
        CmpiCpp::CmpiObjectPath path("root/mwq", className);
        path.setHost("testhost");
        path.addKey("CreationClassName", className);
        path.addKey("Name", name);
        return path;
    }

    CmpiCpp::CmpiObjectPath getPath() const override { return pathOf(_className, _name); }
    CmpiCpp::CmpiInstance getInstance() const override {
        if (failing) {
            throw CmpiCpp::CmpiStatus(CMPI_RC_ERR_FAILED, "hardware gone");
        }
        CmpiCpp::CmpiInstance instance(getPath());
        instance.addProperty("ElementName", "element " + _name);
        instance.addProperty("OperationalStatus", static_cast<unsigned short>(2));
        return instance;
    }
    CmpiCpp::CmpiName getClassName() const override { return _className; }

    std::atomic<bool> failing{false};

private:
    std::string _className;
    std::string _name;
    std::atomic<int>* _destroyed;
};
