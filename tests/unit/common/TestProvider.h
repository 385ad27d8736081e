#pragma once
// An in-memory provider with all four interfaces that records what reaches
// it. Decorators build it through a plain factory function, so what it
// records lives in one shared TestProvider::State that a test resets.
#include "CmpiAssociationProvider.h"
#include "CmpiIndicationProvider.h"
#include "CmpiInstanceProvider.h"
#include "CmpiMethodProvider.h"
#include "CmpiStatus.h"
#include "Logger.h"

#include <atomic>
#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

class TestProvider : public CmpiCpp::CmpiInstanceProvider,
                     public CmpiCpp::CmpiAssociationProvider,
                     public CmpiCpp::CmpiIndicationProvider,
                     public CmpiCpp::CmpiMethodProvider {
public:
    struct Method {
        std::string name;
        std::string nameSpace;
        std::thread::id thread;
        CMPIContext const* context;
    };
    struct State {
        std::mutex mutex;
        std::vector<Method> methods;
        std::atomic<int> built{0};
        std::atomic<int> destroyed{0};
        std::atomic<int> cleanups{0};
        std::atomic<int> enumerations{0};
        // What the n-th method call (from 1) does: "status", "std", "five" or nothing.
        std::vector<std::string> script;

        void reset() {
            std::lock_guard lock(mutex);
            methods.clear();
            script.clear();
            built = destroyed = cleanups = enumerations = 0;
        }
        std::size_t calls() {
            std::lock_guard lock(mutex);
            return methods.size();
        }
        std::vector<Method> snapshot() {
            std::lock_guard lock(mutex);
            return methods;
        }
    };
    static State& state() {
        static State shared;
        return shared;
    }
    static CmpiCpp::CmpiProvider* factory(CmpiCpp::CmpiBroker const&, Logger&) {
        return new TestProvider();
    }

    TestProvider() { ++state().built; }
    ~TestProvider() override { ++state().destroyed; }

    CmpiCpp::CmpiBroker getBroker() override { return {}; }
    void cleanup(CmpiCpp::CmpiContext const&, bool) override { ++state().cleanups; }
    int getProviderKind() override { return 2; }

    // Names stand for one entry per enumeration; everything else is inert.
    using Ctx = CmpiCpp::CmpiContext;
    using Path = CmpiCpp::CmpiObjectPath;
    using Name = CmpiCpp::CmpiName;
    using Exp = CmpiCpp::CmpiSelectExp;
    using Rows = CmpiCpp::CmpiInstanceResult;
    using Paths = CmpiCpp::CmpiObjectPathResult;
    void enumInstanceNames(Ctx const&, Path const& path, Paths& result) override {
        ++state().enumerations;
        result.returnObjectPath(path);
    }
    void enumInstances(Ctx const&, Path const&, char const**, Rows&) override {
        ++state().enumerations;
    }
    void getInstance(Ctx const&, Path const&, char const**, Rows&) override {
        throw CmpiCpp::CmpiStatus(CMPI_RC_ERR_NOT_FOUND);
    }
    void associators(Ctx const&, Path const&, Name const&, Name const&, Name const&, Name const&,
                     char const**, Rows&) override {}
    void associatorNames(Ctx const&, Path const&, Name const&, Name const&, Name const&,
                         Name const&, Paths&) override {}
    void references(Ctx const&, Path const&, Name const&, Name const&, char const**,
                    Rows&) override {}
    void referenceNames(Ctx const&, Path const&, Name const&, Name const&, Paths&) override {}
    void authorizeFilter(Ctx const&, Exp const&, Name const&, Path const&,
                         std::string const&) override {}
    void mustPoll(Ctx const&, Exp const&, Name const&, Path const&) override {}
    void activateFilter(Ctx const&, Exp const&, Name const&, Path const&, bool) override {}
    void deActivateFilter(Ctx const&, Exp const&, Name const&, Path const&, bool) override {}
    void enableIndications() override {}
    void disableIndications() override {}

    void invokeMethod(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                      CmpiCpp::CmpiName const& method, CmpiCpp::CmpiArgs const&,
                      CmpiCpp::CmpiMethodResult& result) override {
        std::string action;
        {
            State& s = state();
            std::lock_guard lock(s.mutex);
            s.methods.push_back({method.str(), path.getNameSpace().str(),
                                 std::this_thread::get_id(), context.toCMPI()});
            if (s.methods.size() <= s.script.size()) {
                action = s.script[s.methods.size() - 1];
            }
        }
        if (action == "status") {
            throw CmpiCpp::CmpiStatus(CMPI_RC_ERR_FAILED, "controller busy");
        }
        if (action == "std") {
            throw std::runtime_error("out of luck");
        }
        result.returnData(action == "five" ? 5u : 0u);
    }
};
