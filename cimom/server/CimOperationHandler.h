#pragma once

#include "CimHttpExchange.h"
#include "CimRequest.h"
#include "CimXmlWriter.h"

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>

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
    using Operation = std::function<void(const CimRequest&, CimXmlWriter&)>;

    CimOperationHandler(const ClassRepository& classes, Settings settings);

    // Set up before serving; the table is read-only while requests run.
    void addOperation(const std::string& name, Operation operation);
    void setMethodCall(Operation operation);

    void handle(CimHttpExchange& exchange) const;

    // Helpers the instance side shares for reading IPARAMVALUEs.
    static bool boolParam(const CimRequest& request, const char* name, bool fallback);
    static std::string classNameParam(const CimRequest& request, const char* name);
    static std::string stringParam(const CimRequest& request, const char* name);
    static std::optional<std::set<std::string>> propertyListParam(const CimRequest& request);

    // Refuses a parameter the operation does not take.
    static void checkParams(const CimRequest& request, std::initializer_list<const char*> allowed);

    static std::string percentDecode(const std::string& text);

private:
    void _checkHeaders(const CimHttpExchange& exchange, const CimRequest& request) const;
    void _dispatch(const CimRequest& request, CimXmlWriter& out) const;
    void _enumerateClassNames(const CimRequest& request, CimXmlWriter& out) const;
    void _enumerateClasses(const CimRequest& request, CimXmlWriter& out) const;
    void _getClass(const CimRequest& request, CimXmlWriter& out) const;

    const ClassRepository& _classes;
    Settings _settings;
    std::map<std::string, Operation> _operations;  // by lower-case name
    Operation _methodCall;
};
