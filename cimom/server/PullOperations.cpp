#include "PullOperations.h"

#include "CimOperationError.h"
#include "CimOperationHandler.h"
#include "CimRequest.h"
#include "CimXmlWriter.h"
#include "FreedMemory.h"
#include "InstanceOperations.h"

#include <charconv>
#include <optional>

namespace Cimom {

namespace {

constexpr std::size_t largeResult = 1 << 20;

using Form = InstanceOperations::Form;

[[noreturn]] void invalidParameter(std::string const& what) {
    throw CimOperationError(CimOperationError::invalidParameter, what);
}

// A uint32 parameter; nullopt when it is absent or NULL.
std::optional<std::uint32_t> uint32Param(CimRequest const& request, char const* name) {
    std::string text = CimOperationHandler::stringParam(request, name);
    if (text.empty())
        return std::nullopt;
    std::uint32_t value = 0;
    auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
        invalidParameter(std::string(name) + " is not a uint32: " + text);
    return value;
}

std::string contextParam(CimRequest const& request) {
    std::string id = CimOperationHandler::stringParam(request, "EnumerationContext");
    if (id.empty())
        invalidParameter(request.methodName() + " needs an EnumerationContext");
    return id;
}

} // namespace

PullOperations::PullOperations(InstanceOperations const& instances, Settings settings)
    : _instances(instances), _settings(settings), _contexts(settings.maxContextsPerClient) {}

void PullOperations::registerWith(CimOperationHandler& handler) {
    handler.addOperation("OpenEnumerateInstances", [this](CimRequest const& request,
                                                          CimXmlWriter& out) {
        CimOperationHandler::checkParams(request,
                                         {"ClassName", "DeepInheritance", "IncludeClassOrigin",
                                          "PropertyList", "FilterQueryLanguage", "FilterQuery",
                                          "OperationTimeout", "ContinueOnError", "MaxObjectCount"});
        _open(request, out, Kind::instances, [&](CimXmlWriter& all) {
            _instances.enumerateInstances(request, all, Form::pulled);
        });
    });
    handler.addOperation("OpenEnumerateInstancePaths", [this](CimRequest const& request,
                                                              CimXmlWriter& out) {
        CimOperationHandler::checkParams(request,
                                         {"ClassName", "FilterQueryLanguage", "FilterQuery",
                                          "OperationTimeout", "ContinueOnError", "MaxObjectCount"});
        _open(request, out, Kind::paths, [&](CimXmlWriter& all) {
            _instances.enumerateInstanceNames(request, all, Form::pulled);
        });
    });
    handler.addOperation(
        "OpenAssociatorInstances", [this](CimRequest const& request, CimXmlWriter& out) {
            CimOperationHandler::checkParams(
                request, {"InstanceName", "AssocClass", "ResultClass", "Role", "ResultRole",
                          "IncludeClassOrigin", "PropertyList", "FilterQueryLanguage",
                          "FilterQuery", "OperationTimeout", "ContinueOnError", "MaxObjectCount"});
            _open(request, out, Kind::instances, [&](CimXmlWriter& all) {
                _instances.associators(request, all, false, Form::pulled);
            });
        });
    handler.addOperation("OpenAssociatorInstancePaths", [this](CimRequest const& request,
                                                               CimXmlWriter& out) {
        CimOperationHandler::checkParams(request,
                                         {"InstanceName", "AssocClass", "ResultClass", "Role",
                                          "ResultRole", "FilterQueryLanguage", "FilterQuery",
                                          "OperationTimeout", "ContinueOnError", "MaxObjectCount"});
        _open(request, out, Kind::paths,
              [&](CimXmlWriter& all) { _instances.associators(request, all, true, Form::pulled); });
    });
    handler.addOperation("OpenReferenceInstances", [this](CimRequest const& request,
                                                          CimXmlWriter& out) {
        CimOperationHandler::checkParams(
            request, {"InstanceName", "ResultClass", "Role", "IncludeClassOrigin", "PropertyList",
                      "FilterQueryLanguage", "FilterQuery", "OperationTimeout", "ContinueOnError",
                      "MaxObjectCount"});
        _open(request, out, Kind::instances,
              [&](CimXmlWriter& all) { _instances.references(request, all, false, Form::pulled); });
    });
    handler.addOperation("OpenReferenceInstancePaths", [this](CimRequest const& request,
                                                              CimXmlWriter& out) {
        CimOperationHandler::checkParams(
            request, {"InstanceName", "ResultClass", "Role", "FilterQueryLanguage", "FilterQuery",
                      "OperationTimeout", "ContinueOnError", "MaxObjectCount"});
        _open(request, out, Kind::paths,
              [&](CimXmlWriter& all) { _instances.references(request, all, true, Form::pulled); });
    });
    handler.addOperation(
        "PullInstancesWithPath", [this](CimRequest const& request, CimXmlWriter& out) {
            CimOperationHandler::checkParams(request, {"EnumerationContext", "MaxObjectCount"});
            _pull(request, out, Kind::instances);
        });
    handler.addOperation("PullInstancePaths", [this](CimRequest const& request, CimXmlWriter& out) {
        CimOperationHandler::checkParams(request, {"EnumerationContext", "MaxObjectCount"});
        _pull(request, out, Kind::paths);
    });
    handler.addOperation("EnumerationCount", [this](CimRequest const& request, CimXmlWriter& out) {
        CimOperationHandler::checkParams(request, {"EnumerationContext"});
        _enumerationCount(request, out);
    });
    handler.addOperation("CloseEnumeration", [this](CimRequest const& request, CimXmlWriter& out) {
        CimOperationHandler::checkParams(request, {"EnumerationContext"});
        _close(request, out);
    });
}

std::chrono::seconds PullOperations::_openOptions(CimRequest const& request) const {
    if (!CimOperationHandler::stringParam(request, "FilterQuery").empty() ||
        !CimOperationHandler::stringParam(request, "FilterQueryLanguage").empty())
        throw CimOperationError(CimOperationError::filteredEnumerationNotSupported,
                                "filtered pulled enumerations are not supported");
    // Every result is gathered when the enumeration opens, so there is no
    // later error to continue past; a client asking for it is told so.
    if (CimOperationHandler::boolParam(request, "ContinueOnError", false))
        throw CimOperationError(CimOperationError::continuationOnErrorNotSupported,
                                "ContinueOnError is not supported");
    std::optional<std::uint32_t> seconds = uint32Param(request, "OperationTimeout");
    if (!seconds)
        return _settings.defaultTimeout;
    // No context lives for ever: 0 (never expire) is refused like a too long one.
    if (*seconds == 0 || std::chrono::seconds(*seconds) > _settings.maxTimeout)
        throw CimOperationError(CimOperationError::invalidOperationTimeout,
                                "OperationTimeout " + std::to_string(*seconds) +
                                    " is outside 1 to " +
                                    std::to_string(_settings.maxTimeout.count()) + " seconds");
    return std::chrono::seconds(*seconds);
}

template <typename Enumerate>
void PullOperations::_open(CimRequest const& request, CimXmlWriter& out, Kind kind,
                           Enumerate&& enumerate) {
    std::chrono::seconds const timeout = _openOptions(request);
    std::uint32_t const max = uint32Param(request, "MaxObjectCount").value_or(0);
    EnumerationContexts::Results results;
    results.kind = kind;
    CimXmlWriter all(false);
    // The objects sit one level inside the IRETURNVALUE the operation writes.
    all.recordSpans(&results.objects, 1);
    enumerate(all);
    results.text = all.take();
    if (results.text.size() >= largeResult) {
        // The context keeps only the text, at its own size. Building it left
        // several times that freed in this worker's malloc arena, and the
        // small first answer would not have it handed back.
        results.text.shrink_to_fit();
        giveBackFreedMemory();
    }
    _writeBatch(out, _contexts.open({request.client(), request.nameSpace()}, std::move(results),
                                    timeout, max));
}

void PullOperations::_pull(CimRequest const& request, CimXmlWriter& out, Kind kind) {
    std::optional<std::uint32_t> max = uint32Param(request, "MaxObjectCount");
    if (!max)
        invalidParameter(request.methodName() + " needs a MaxObjectCount");
    _writeBatch(out, _contexts.pull({request.client(), request.nameSpace()}, contextParam(request),
                                    kind, *max));
}

void PullOperations::_enumerationCount(CimRequest const& request, CimXmlWriter& out) {
    std::uint64_t count =
        _contexts.remaining({request.client(), request.nameSpace()}, contextParam(request));
    out.open("IRETURNVALUE").element("VALUE", std::to_string(count)).close();
}

void PullOperations::_close(CimRequest const& request, CimXmlWriter&) {
    _contexts.close({request.client(), request.nameSpace()}, contextParam(request));
}

void PullOperations::_writeBatch(CimXmlWriter& out, EnumerationContexts::Batch const& batch) {
    out.open("IRETURNVALUE").raw(batch.xml).close();
    out.open("PARAMVALUE", {{"NAME", "EndOfSequence"}, {"PARAMTYPE", "boolean"}})
        .element("VALUE", batch.endOfSequence() ? "TRUE" : "FALSE")
        .close();
    // At the end the context is gone, and so is its name.
    out.open("PARAMVALUE", {{"NAME", "EnumerationContext"}, {"PARAMTYPE", "string"}});
    if (!batch.endOfSequence())
        out.element("VALUE", batch.context);
    out.close();
}

} // namespace Cimom
