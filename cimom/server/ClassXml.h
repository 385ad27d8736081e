#pragma once

#include "CimClassDecl.h"
#include "CimXmlWriter.h"

#include <optional>
#include <set>
#include <string>

namespace Cimom {

// Writes CLASS elements for GetClass and EnumerateClasses.
class ClassXml {
public:
    struct Options {
        bool localOnly = true;
        bool includeQualifiers = true;
        bool includeClassOrigin = false;
        // Lower-case property names; absent means all.
        std::optional<std::set<std::string>> propertyList;
    };

    static void writeClass(CimXmlWriter& out, CimClassDecl const& cls, Options const& options);
    static void writeQualifier(CimXmlWriter& out, CimClassDecl::Qualifier const& qualifier);
    static void writeValue(CimXmlWriter& out, CimClassDecl::Value const& value);
    static std::string literalText(CimClassDecl::Literal const& literal);

private:
    static void _writeProperty(CimXmlWriter& out, CimClassDecl::Property const& p,
                               Options const& options);
    static void _writeMethod(CimXmlWriter& out, CimClassDecl::Method const& m,
                             Options const& options);
};

} // namespace Cimom
