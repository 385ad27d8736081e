#pragma once
// Drives the periodic work of the wrapped provider. It owns the autostart
// instance, serves that instance's class itself (enumerations and
// getInstance), and runs one thread, attached to the broker, that calls the
// extrinsic method "PerformWork" on the wrapped provider: first after
// WorkerPollIntervalStagger seconds, then every WorkerPollInterval seconds,
// in the namespace WorkerMethodNameSpace, all three read from the instance.
// VELDRA_WORKER_INTERVAL_MS and VELDRA_WORKER_STAGGER_MS in the framework
// configuration replace both times (tests, demos). A failed pass is logged
// and the schedule goes on; cleanup() and destruction stop and join the
// thread without waiting out the current sleep.
#include "CmpiManagedInstance.h"
#include "ProviderDecorator.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace QLN {

class AutostartDecorator : public ProviderDecorator {
public:
    // Takes over `autostart`, also when the constructor throws. The instance
    // must carry the three worker properties, with an interval above 0.
    AutostartDecorator(CmpiCpp::CmpiBroker const& broker, Logger& logger,
                       CmpiManagedInstance* autostart, ProviderFactory factory);
    ~AutostartDecorator() override;

    void cleanup(CmpiCpp::CmpiContext const& context, bool terminating) override;

    void enumInstanceNames(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                           CmpiCpp::CmpiObjectPathResult& result) override;
    void enumInstances(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                       char const** properties, CmpiCpp::CmpiInstanceResult& result) override;
    void getInstance(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                     char const** properties, CmpiCpp::CmpiInstanceResult& result) override;

    std::chrono::milliseconds interval() const { return _interval; }
    std::chrono::milliseconds stagger() const { return _stagger; }
    std::string const& workerNameSpace() const { return _workerNameSpace; }
    // Passes started so far, whatever their outcome.
    unsigned long passes() const { return _passes.load(); }

protected:
    void _callStarted(Call const& call) override;

private:
    void _readSchedule(CmpiManagedInstance const& autostart);
    bool _servesClass(CmpiCpp::CmpiObjectPath const& path) const;
    void _prepareFrom(CmpiCpp::CmpiContext const& context);
    void _run();
    void _runPass(CmpiCpp::CmpiContext const& context);
    void _stop();

    std::unique_ptr<CmpiManagedInstance> _autostart;
    std::chrono::milliseconds _interval{0};
    std::chrono::milliseconds _stagger{0};
    std::string _workerNameSpace;

    std::mutex _mutex;
    std::condition_variable _wake;
    bool _stopping = false;
    // The context for the worker thread, prepared on a request thread when
    // one passes by before the first pass.
    std::atomic<bool> _prepared{false};
    CmpiCpp::CmpiContext _threadContext;
    std::atomic<unsigned long> _passes{0};
    std::thread _thread;
};

} // namespace QLN
