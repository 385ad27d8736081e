#pragma once
// A broker that offers only the thread services, and records how they were used.
#include "cmpift.h"

#include <atomic>
#include <mutex>
#include <thread>

class TestBroker {
public:
    TestBroker() {
        _table.brokerVersion = 0; // as old object managers report it
        _table.prepareAttachThread = &TestBroker::_prepare;
        _table.attachThread = &TestBroker::_attach;
        _table.detachThread = &TestBroker::_detach;
        _broker.hdl = this;
        _broker.bft = &_table;
    }
    TestBroker(TestBroker const&) = delete;
    TestBroker& operator=(TestBroker const&) = delete;

    CMPIBroker const* get() const { return &_broker; }
    CMPIContext const* threadContext() const { return &_threadContext; }

    std::thread::id attachedOn() const {
        std::lock_guard lock(_mutex);
        return _attachedOn;
    }
    std::thread::id detachedOn() const {
        std::lock_guard lock(_mutex);
        return _detachedOn;
    }

    std::atomic<int> prepared{0};
    std::atomic<int> attached{0};
    std::atomic<int> detached{0};
    std::atomic<CMPIContext const*> preparedWith{nullptr};
    std::atomic<CMPIContext const*> attachedWith{nullptr};

private:
    static TestBroker* _self(CMPIBroker const* broker) {
        return static_cast<TestBroker*>(broker->hdl);
    }
    static CMPIContext* _prepare(CMPIBroker const* broker, CMPIContext const* context) {
        TestBroker* self = _self(broker);
        self->preparedWith = context;
        ++self->prepared;
        return &self->_threadContext;
    }
    static CMPIStatus _attach(CMPIBroker const* broker, CMPIContext const* context) {
        TestBroker* self = _self(broker);
        {
            std::lock_guard lock(self->_mutex);
            self->_attachedOn = std::this_thread::get_id();
        }
        self->attachedWith = context;
        ++self->attached;
        return {CMPI_RC_OK, nullptr};
    }
    static CMPIStatus _detach(CMPIBroker const* broker, CMPIContext const*) {
        TestBroker* self = _self(broker);
        {
            std::lock_guard lock(self->_mutex);
            self->_detachedOn = std::this_thread::get_id();
        }
        ++self->detached;
        return {CMPI_RC_OK, nullptr};
    }

    CMPIBrokerFT _table{};
    CMPIBroker _broker{};
    CMPIContext _threadContext{};
    mutable std::mutex _mutex;
    std::thread::id _attachedOn;
    std::thread::id _detachedOn;
};
