#pragma once

#include "CimClassDecl.h"
#include "CimXmlWriter.h"

#include <optional>
#include <set>
#include <string>

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

    static void writeClass(CimXmlWriter& out, const CimClassDecl& cls, const Options& options);
    static void writeQualifier(CimXmlWriter& out, const CimClassDecl::Qualifier& qualifier);
    static void writeValue(CimXmlWriter& out, const CimClassDecl::Value& value);
    static std::string literalText(const CimClassDecl::Literal& literal);

private:
    static void _writeProperty(CimXmlWriter& out, const CimClassDecl::Property& p, const Options& options);
    static void _writeMethod(CimXmlWriter& out, const CimClassDecl::Method& m, const Options& options);
};
