#include "AutostartDecorator.h"

#include "CapturedMethodResult.h"
#include "CmpiStatus.h"
#include "FrameworkConfig.h"

#include <stdexcept>

using CmpiCpp::CmpiContext;
using CmpiCpp::CmpiInstance;
using CmpiCpp::CmpiInstanceResult;
using CmpiCpp::CmpiObjectPath;
using CmpiCpp::CmpiObjectPathResult;
using CmpiCpp::CmpiStatus;

namespace QLN {

namespace {

char const* const workerMethod = "PerformWork";

} // namespace

AutostartDecorator::AutostartDecorator(CmpiCpp::CmpiBroker const& broker, Logger& logger,
                                       CmpiManagedInstance* autostart, ProviderFactory factory) try
    : ProviderDecorator(broker, logger, factory) {
    _logger.appendLogSource(":");
    _logger.appendLogSource("AutostartDecorator");
    if (!autostart) {
        throw CmpiStatus(CMPI_RC_ERR_FAILED, "AutostartDecorator needs an autostart instance");
    }
    _readSchedule(*autostart);
    _logger.info("cxtor() PerformWork in %s after %lld ms, then every %lld ms",
                 _workerNameSpace.c_str(), static_cast<long long>(_stagger.count()),
                 static_cast<long long>(_interval.count()));
    // Nothing below may throw once the instance is owned, or the handler
    // below would free it a second time.
    _autostart.reset(autostart);
    try {
        _thread = std::thread(&AutostartDecorator::_run, this);
    } catch (...) {
        _autostart.release();
        throw;
    }
} catch (...) {
    // Ownership was promised even for a failed construction.
    delete autostart;
}

AutostartDecorator::~AutostartDecorator() {
    _stop();
    _logger.info("dxtor()");
}

void AutostartDecorator::_readSchedule(CmpiManagedInstance const& autostart) {
    CmpiInstance instance = autostart.getInstance();
    long intervalSeconds = 0;
    long staggerSeconds = 0;
    try {
        intervalSeconds = instance.getProperty("WorkerPollInterval").getUint16();
        staggerSeconds = instance.getProperty("WorkerPollIntervalStagger").getUint16();
        _workerNameSpace = instance.getProperty("WorkerMethodNameSpace").getString();
    } catch (CmpiStatus const& e) {
        throw CmpiStatus(CMPI_RC_ERR_FAILED,
                         "autostart instance " + instance.getClassName().str() +
                             " lacks a worker property (WorkerPollInterval, "
                             "WorkerPollIntervalStagger, WorkerMethodNameSpace): " +
                             e.str());
    }
    _interval = std::chrono::milliseconds(
        FrameworkConfig::getInt("VELDRA_WORKER_INTERVAL_MS", intervalSeconds * 1000));
    _stagger = std::chrono::milliseconds(
        FrameworkConfig::getInt("VELDRA_WORKER_STAGGER_MS", staggerSeconds * 1000));
    if (_interval.count() <= 0) {
        throw std::runtime_error("worker interval must be above 0, is " +
                                 std::to_string(_interval.count()) + " ms");
    }
    if (_stagger.count() < 0) {
        throw std::runtime_error("worker stagger must not be negative, is " +
                                 std::to_string(_stagger.count()) + " ms");
    }
}

void AutostartDecorator::_stop() {
    {
        std::lock_guard lock(_mutex);
        _stopping = true;
    }
    _wake.notify_all();
    if (!_thread.joinable()) {
        return;
    }
    if (_thread.get_id() == std::this_thread::get_id()) {
        // Torn down from inside a pass: joining ourselves would never end.
        _thread.detach();
    } else {
        _thread.join();
    }
}

void AutostartDecorator::cleanup(CmpiContext const& context, bool terminating) {
    // The thread calls into the wrapped provider, so it goes first.
    _stop();
    ProviderDecorator::cleanup(context, terminating);
}

// prepareAttachThread wants a request's context, and the decorator has none
// at load. So the first request that passes through before the first pass
// prepares it on its own thread, while its context is alive; if none has come
// by then, the worker prepares with a null context, which our object
// manager's broker answers with a fresh one.
void AutostartDecorator::_prepareFrom(CmpiContext const& context) {
    std::lock_guard lock(_mutex);
    // After a stop no thread will attach, so nothing is to be prepared.
    if (_prepared.load() || _stopping) {
        return;
    }
    try {
        _threadContext = _broker.prepareAttachThread(context);
    } catch (std::exception const& e) {
        _logger.warn("prepareAttachThread failed: %s", e.what());
        _threadContext = CmpiContext();
    }
    _prepared.store(true);
}

void AutostartDecorator::_callStarted(Call const& call) {
    if (!_prepared.load(std::memory_order_acquire) && call.context && !call.context->isNull()) {
        _prepareFrom(*call.context);
    }
}

bool AutostartDecorator::_servesClass(CmpiObjectPath const& path) const {
    return path.getClassName() == _autostart->getClassName();
}

void AutostartDecorator::enumInstanceNames(CmpiContext const& context, CmpiObjectPath const& path,
                                           CmpiObjectPathResult& result) {
    if (!_servesClass(path)) {
        ProviderDecorator::enumInstanceNames(context, path, result);
        return;
    }
    _callStarted({Operation::EnumInstanceNames, &context, &path, nullptr});
    result.returnObjectPath(_autostart->getPath());
}

void AutostartDecorator::enumInstances(CmpiContext const& context, CmpiObjectPath const& path,
                                       char const** properties, CmpiInstanceResult& result) {
    if (!_servesClass(path)) {
        ProviderDecorator::enumInstances(context, path, properties, result);
        return;
    }
    _callStarted({Operation::EnumInstances, &context, &path, nullptr});
    result.returnInstance(_autostart->getInstance().filtered(properties));
}

void AutostartDecorator::getInstance(CmpiContext const& context, CmpiObjectPath const& path,
                                     char const** properties, CmpiInstanceResult& result) {
    if (!_servesClass(path)) {
        ProviderDecorator::getInstance(context, path, properties, result);
        return;
    }
    _callStarted({Operation::GetInstance, &context, &path, nullptr});
    if (!(_autostart->getPath() == path)) {
        throw CmpiStatus(CMPI_RC_ERR_NOT_FOUND);
    }
    result.returnInstance(_autostart->getInstance().filtered(properties));
}

void AutostartDecorator::_runPass(CmpiContext const& context) {
    _passes.fetch_add(1);
    try {
        CmpiObjectPath path = _autostart->getPath();
        path.setNameSpace(_workerNameSpace);
        CmpiCpp::CmpiArgs in;
        CapturedMethodResult result;
        _methodProvider().invokeMethod(context, path, workerMethod, in, result);
        if (!result.returnValue()) {
            _logger.warn("PerformWork returned no value");
        } else if (*result.returnValue() != 0) {
            _logger.warn("PerformWork returned %u", static_cast<unsigned>(*result.returnValue()));
        }
    } catch (CmpiStatus const& e) {
        _logger.error("PerformWork failed: %s", e.str().c_str());
    } catch (std::exception const& e) {
        _logger.error("PerformWork failed: %s", e.what());
    } catch (...) {
        _logger.error("PerformWork failed with an unknown exception");
    }
}

void AutostartDecorator::_run() {
    using Clock = std::chrono::steady_clock;
    auto next = Clock::now() + _stagger;
    {
        std::unique_lock lock(_mutex);
        if (_wake.wait_until(lock, next, [this] { return _stopping; })) {
            return;
        }
    }
    if (!_prepared.load()) {
        _prepareFrom(CmpiContext());
    }
    CmpiContext context;
    {
        std::lock_guard lock(_mutex);
        if (_stopping) {
            return;
        }
        context = _threadContext;
    }
    bool attached = false;
    try {
        _broker.attachThread(context);
        attached = true;
    } catch (std::exception const& e) {
        _logger.error("attachThread failed, passes run unattached: %s", e.what());
    }

    while (true) {
        _runPass(context);
        // A fixed rate: a long pass shortens the wait, an overlong one skips
        // the slots it missed rather than running passes back to back.
        auto now = Clock::now();
        next += _interval;
        while (next <= now) {
            next += _interval;
        }
        std::unique_lock lock(_mutex);
        if (_wake.wait_until(lock, next, [this] { return _stopping; })) {
            break;
        }
    }

    if (attached) {
        try {
            _broker.detachThread(context);
        } catch (std::exception const& e) {
            _logger.warn("detachThread failed: %s", e.what());
        }
    }
}

} // namespace QLN
