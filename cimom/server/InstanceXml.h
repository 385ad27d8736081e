#pragma once

#include "CimClassDecl.h"
#include "CimInstance.h"
#include "CimObjectPath.h"
#include "CimValue.h"
#include "CimXmlWriter.h"

#include <pugixml.hpp>

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace Cimom {

class ClassRepository;

// CIM-XML of instances, paths and values, both ways, in the shapes wbemcli
// reads. Decoding throws CimOperationError(INVALID_PARAMETER) on bad input.
class InstanceXml {
public:
    struct InstanceOptions {
        CimClassDecl const* cls = nullptr; // types nulls and adds qualifiers/origin
        bool includeQualifiers = false;
        bool includeClassOrigin = false;
        std::optional<std::set<std::string>> propertyList; // lower-case names
        // The tags written for the last instance's properties, by position:
        // instances of one class set their properties in one order and with
        // one type each, so the next instance mostly writes them as they are.
        struct PropertyTags {
            std::string name; // as spelled by the instance it was made for
            CMPIType type;
            std::string open;
            std::string close;
        };
        mutable std::vector<PropertyTags> tags;
        mutable CimClassDecl const* tagsOf = nullptr;
        mutable bool tagsWithOrigin = false;
    };

    static void writeInstanceName(CimXmlWriter& out, CimObjectPath const& path);
    // INSTANCEPATH: NAMESPACEPATH (HOST, LOCALNAMESPACEPATH) then INSTANCENAME.
    static void writeInstancePath(CimXmlWriter& out, CimObjectPath const& path,
                                  std::string const& host);
    static void writeLocalNamespacePath(CimXmlWriter& out, std::string const& nameSpace);
    static void writeInstance(CimXmlWriter& out, CimInstance const& instance,
                              InstanceOptions const& options);
    // VALUE, VALUE.ARRAY or VALUE.REFERENCE (a LOCALINSTANCEPATH) for a non-null value.
    static void writeValue(CimXmlWriter& out, CimValue const& value);

    // Reads an INSTANCENAME; key types follow the class's MOF when held.
    static CimObjectPath readInstanceName(pugi::xml_node node, std::string const& nameSpace,
                                          ClassRepository const* classes);
    // Reads any of the path forms a VALUE.REFERENCE may hold.
    static CimObjectPath readReference(pugi::xml_node valueReference, std::string const& nameSpace,
                                       ClassRepository const* classes);
    // Reads the value inside a PARAMVALUE; type is the declared one (CMPI_null: untyped).
    static CimValue readParamValue(pugi::xml_node paramValue, CMPIType type,
                                   std::string const& nameSpace, ClassRepository const* classes);
};

} // namespace Cimom
