#pragma once
// A provider of all four kinds for driving the function tables: it records
// what reached it and throws what it is told to.
#include "CmpiCpp.h"

#include <functional>
#include <string>
#include <vector>

class TestProvider : public CmpiCpp::CmpiInstanceProvider,
                     public CmpiCpp::CmpiAssociationProvider,
                     public CmpiCpp::CmpiIndicationProvider,
                     public CmpiCpp::CmpiMethodProvider {
public:
    // The object's end and its cleanup calls are reported through these, as
    // the object itself is gone by the time a test looks.
    TestProvider(CMPIBroker const* broker, bool* destroyed, int* cleanups)
        : _broker(broker), _destroyed(destroyed), _cleanups(cleanups) {}
    ~TestProvider() override {
        if (_destroyed)
            *_destroyed = true;
    }

    // Run at the start of every operation; a test sets it to throw.
    std::function<void()> before = [] {};
    // Run after an enumeration has returned everything.
    std::function<void()> after = [] {};
    std::vector<CmpiCpp::CmpiInstance> instances;
    std::vector<std::string> calls;
    CmpiCpp::CmpiObjectPath lastPath;
    CmpiCpp::CmpiArgs lastArgs;
    std::vector<std::string> lastNames;
    bool lastFlag = false;
    bool indicationsOn = false;
    bool lastTerminating = false;
    char const** lastProperties = nullptr;
    std::uint32_t methodValue = 0;

    CmpiCpp::CmpiBroker getBroker() override { return _broker; }
    void cleanup(CmpiCpp::CmpiContext const&, bool terminating) override {
        lastTerminating = terminating;
        if (_cleanups)
            ++*_cleanups;
        before();
    }
    int getProviderKind() override { return 2; }

    void enumInstanceNames(CmpiCpp::CmpiContext const&, CmpiCpp::CmpiObjectPath const& path,
                           CmpiCpp::CmpiObjectPathResult& result) override {
        _enter("enumInstanceNames", path);
        for (auto const& inst : instances)
            result.returnObjectPath(inst.getPath());
        after();
    }
    void enumInstances(CmpiCpp::CmpiContext const&, CmpiCpp::CmpiObjectPath const& path,
                       char const** properties, CmpiCpp::CmpiInstanceResult& result) override {
        _enter("enumInstances", path);
        lastProperties = properties;
        for (auto const& inst : instances)
            result.returnInstance(inst);
        after();
    }
    void getInstance(CmpiCpp::CmpiContext const&, CmpiCpp::CmpiObjectPath const& path,
                     char const** properties, CmpiCpp::CmpiInstanceResult& result) override {
        _enter("getInstance", path);
        lastProperties = properties;
        for (auto const& inst : instances) {
            if (inst.getPath() == path) {
                result.returnInstance(inst);
                return;
            }
        }
        throw CmpiCpp::CmpiStatus(CMPI_RC_ERR_NOT_FOUND);
    }

    void associators(CmpiCpp::CmpiContext const&, CmpiCpp::CmpiObjectPath const& path,
                     CmpiCpp::CmpiName const& assocClass, CmpiCpp::CmpiName const& resultClass,
                     CmpiCpp::CmpiName const& role, CmpiCpp::CmpiName const& resultRole,
                     char const** properties, CmpiCpp::CmpiInstanceResult& result) override {
        _enter("associators", path);
        lastNames = {assocClass.str(), resultClass.str(), role.str(), resultRole.str()};
        lastProperties = properties;
        for (auto const& inst : instances)
            result.returnInstance(inst);
    }
    void associatorNames(CmpiCpp::CmpiContext const&, CmpiCpp::CmpiObjectPath const& path,
                         CmpiCpp::CmpiName const& assocClass, CmpiCpp::CmpiName const& resultClass,
                         CmpiCpp::CmpiName const& role, CmpiCpp::CmpiName const& resultRole,
                         CmpiCpp::CmpiObjectPathResult& result) override {
        _enter("associatorNames", path);
        lastNames = {assocClass.str(), resultClass.str(), role.str(), resultRole.str()};
        for (auto const& inst : instances)
            result.returnObjectPath(inst.getPath());
    }
    void references(CmpiCpp::CmpiContext const&, CmpiCpp::CmpiObjectPath const& path,
                    CmpiCpp::CmpiName const& resultClass, CmpiCpp::CmpiName const& role,
                    char const** properties, CmpiCpp::CmpiInstanceResult& result) override {
        _enter("references", path);
        lastNames = {resultClass.str(), role.str()};
        lastProperties = properties;
        for (auto const& inst : instances)
            result.returnInstance(inst);
    }
    void referenceNames(CmpiCpp::CmpiContext const&, CmpiCpp::CmpiObjectPath const& path,
                        CmpiCpp::CmpiName const& resultClass, CmpiCpp::CmpiName const& role,
                        CmpiCpp::CmpiObjectPathResult& result) override {
        _enter("referenceNames", path);
        lastNames = {resultClass.str(), role.str()};
        for (auto const& inst : instances)
            result.returnObjectPath(inst.getPath());
    }

    void authorizeFilter(CmpiCpp::CmpiContext const&, CmpiCpp::CmpiSelectExp const&,
                         CmpiCpp::CmpiName const& className, CmpiCpp::CmpiObjectPath const& path,
                         std::string const& owner) override {
        _enter("authorizeFilter", path);
        lastNames = {className.str(), owner};
    }
    void mustPoll(CmpiCpp::CmpiContext const&, CmpiCpp::CmpiSelectExp const&,
                  CmpiCpp::CmpiName const& className,
                  CmpiCpp::CmpiObjectPath const& path) override {
        _enter("mustPoll", path);
        lastNames = {className.str()};
    }
    void activateFilter(CmpiCpp::CmpiContext const&, CmpiCpp::CmpiSelectExp const&,
                        CmpiCpp::CmpiName const& className, CmpiCpp::CmpiObjectPath const& path,
                        bool firstActivation) override {
        _enter("activateFilter", path);
        lastNames = {className.str()};
        lastFlag = firstActivation;
    }
    void deActivateFilter(CmpiCpp::CmpiContext const&, CmpiCpp::CmpiSelectExp const&,
                          CmpiCpp::CmpiName const& className, CmpiCpp::CmpiObjectPath const& path,
                          bool lastActivation) override {
        _enter("deActivateFilter", path);
        lastNames = {className.str()};
        lastFlag = lastActivation;
    }
    void enableIndications() override {
        _enter("enableIndications", {});
        indicationsOn = true;
    }
    void disableIndications() override {
        _enter("disableIndications", {});
        indicationsOn = false;
    }

    void invokeMethod(CmpiCpp::CmpiContext const&, CmpiCpp::CmpiObjectPath const& path,
                      CmpiCpp::CmpiName const& method, CmpiCpp::CmpiArgs const& in,
                      CmpiCpp::CmpiMethodResult& result) override {
        _enter("invokeMethod", path);
        lastNames = {method.str()};
        lastArgs = in;
        if (method == "Echo")
            result.addOutArg("Echoed", in.getArg(std::string("Duration")));
        result.returnData(methodValue);
    }

private:
    void _enter(char const* name, CmpiCpp::CmpiObjectPath const& path) {
        calls.push_back(name);
        lastPath = path;
        before();
    }

    CMPIBroker const* _broker;
    bool* _destroyed;
    int* _cleanups;
};
