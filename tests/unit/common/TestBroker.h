#pragma once
// A broker that offers only the thread services, and records how they were used.
#include "cmpift.h"

#include <atomic>
#include <thread>

class TestBroker {
public:
    TestBroker() {
        _table.brokerVersion = 0; // as old object managers report it
        _table.prepareAttachThread = [](CMPIBroker const* broker, CMPIContext const* context) {
            TestBroker* self = _self(broker);
            self->preparedWith = context;
            ++self->prepared;
            return &self->_threadContext;
        };
        _table.attachThread = [](CMPIBroker const* broker, CMPIContext const*) {
            _self(broker)->attachedOn = std::this_thread::get_id();
            ++_self(broker)->attached;
            return CMPIStatus{CMPI_RC_OK, nullptr};
        };
        _table.detachThread = [](CMPIBroker const* broker, CMPIContext const*) {
            _self(broker)->detachedOn = std::this_thread::get_id();
            ++_self(broker)->detached;
            return CMPIStatus{CMPI_RC_OK, nullptr};
        };
        _broker.hdl = this;
        _broker.bft = &_table;
    }
    TestBroker(TestBroker const&) = delete;
    TestBroker& operator=(TestBroker const&) = delete;

    CMPIBroker const* get() const { return &_broker; }
    CMPIContext const* threadContext() const { return &_threadContext; }

    std::atomic<int> prepared{0};
    std::atomic<int> attached{0};
    std::atomic<int> detached{0};
    std::atomic<CMPIContext const*> preparedWith{nullptr};
    std::atomic<std::thread::id> attachedOn;
    std::atomic<std::thread::id> detachedOn;

private:
    static TestBroker* _self(CMPIBroker const* broker) {
        return static_cast<TestBroker*>(broker->hdl);
    }

    CMPIBrokerFT _table{};
    CMPIBroker _broker{};
    CMPIContext _threadContext{};
};
