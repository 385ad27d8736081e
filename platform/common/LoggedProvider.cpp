#include "LoggedProvider.h"

namespace QLN {

LoggedProvider::LoggedProvider(CmpiCpp::CmpiBroker const& broker, Logger& logger,
                               ProviderFactory factory)
    : ProviderDecorator(broker, logger, factory) {
    _logger.appendLogSource(":");
    _logger.appendLogSource("LoggedProvider");
    _logger.info("cxtor()");
}

LoggedProvider::~LoggedProvider() {
    _logger.info("dxtor()");
}

void LoggedProvider::_callStarted(Call const& call) {
    char const* operation = operationName(call.operation);
    // Enumerations are about a class; single-object calls about a path.
    bool classOnly = call.operation == Operation::EnumInstanceNames ||
                     call.operation == Operation::EnumInstances ||
                     call.operation == Operation::ExecQuery;
    std::string about;
    if (call.path && !call.path->empty()) {
        about = classOnly ? call.path->getNameSpace().str() + ":" + call.path->getClassName().str()
                          : call.path->str();
    }
    if (call.name && !call.name->empty()) {
        about = call.name->str() + (about.empty() ? "" : " on " + about);
    }
    if (about.empty()) {
        _logger.info("%s", operation);
    } else {
        _logger.info("%s %s", operation, about.c_str());
    }
}

void LoggedProvider::_callEnded(Call const& call, std::chrono::nanoseconds elapsed, bool failed) {
    if (failed) {
        _logger.warn("%s failed after %.3f ms", operationName(call.operation),
                     std::chrono::duration<double, std::milli>(elapsed).count());
    }
}

} // namespace QLN
