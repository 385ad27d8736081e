#pragma once

#include "CimHttpExchange.h"
#include "CimRequest.h"
#include "CimXmlWriter.h"

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>

namespace Cimom {

class ClassRepository;

// Turns one CIM-XML request into one CIM-XML response: header checks,
// parsing, parameter reading and dispatch by operation name. The class
// operations are its own; others (instances, methods) are added to its table.
class CimOperationHandler {
public:
    struct Settings {
        int maxXmlDepth = 32;
    };
    // Writes the content of IMETHODRESPONSE/METHODRESPONSE, or throws CimOperationError.
    using Operation = std::function<void(CimRequest const&, CimXmlWriter&)>;

    CimOperationHandler(ClassRepository const& classes, Settings settings);

    // Set up before serving; the table is read-only while requests run.
    void addOperation(std::string const& name, Operation operation);
    void setMethodCall(Operation operation);

    void handle(CimHttpExchange& exchange) const;

    // Helpers the instance side shares for reading IPARAMVALUEs.
    static bool boolParam(CimRequest const& request, char const* name, bool fallback);
    static std::string classNameParam(CimRequest const& request, char const* name);
    static std::string stringParam(CimRequest const& request, char const* name);
    static std::optional<std::set<std::string>> propertyListParam(CimRequest const& request);

    // Refuses a parameter the operation does not take.
    static void checkParams(CimRequest const& request, std::initializer_list<char const*> allowed);

    static std::string percentDecode(std::string const& text);

private:
    void _checkHeaders(CimHttpExchange const& exchange, CimRequest const& request) const;
    void _dispatch(CimRequest const& request, CimXmlWriter& out) const;
    void _enumerateClassNames(CimRequest const& request, CimXmlWriter& out) const;
    void _enumerateClasses(CimRequest const& request, CimXmlWriter& out) const;
    void _getClass(CimRequest const& request, CimXmlWriter& out) const;

    ClassRepository const& _classes;
    Settings _settings;
    std::map<std::string, Operation> _operations; // by lower-case name
    Operation _methodCall;
};

} // namespace Cimom
