#pragma once
// An autostart record with the worker properties; `complete` false leaves
// WorkerPollInterval out.
#include "CmpiManagedInstance.h"

#include <atomic>

class TestAutostartInstance : public QLN::CmpiManagedInstance {
public:
    explicit TestAutostartInstance(std::atomic<int>* destroyed = nullptr, bool complete = true)
        : _destroyed(destroyed), _complete(complete) {}
    ~TestAutostartInstance() override {
        if (_destroyed) {
            ++*_destroyed;
        }
    }

    CmpiCpp::CmpiObjectPath getPath() const override {
        CmpiCpp::CmpiObjectPath path("root/mwq", "QLN_AutoStartVeldra");
        path.addKey("ProviderName", "QLNVeldra");
        return path;
    }
    CmpiCpp::CmpiInstance getInstance() const override {
        CmpiCpp::CmpiInstance instance(getPath());
        instance.addProperty("WorkerMethodNameSpace", "root/mwq");
        if (_complete) {
            instance.addProperty("WorkerPollInterval", static_cast<unsigned short>(30));
        }
        instance.addProperty("WorkerPollIntervalStagger", static_cast<unsigned short>(18));
        return instance;
    }
    CmpiCpp::CmpiName getClassName() const override { return "QLN_AutoStartVeldra"; }

private:
    std::atomic<int>* _destroyed;
    bool _complete;
};
