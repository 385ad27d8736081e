#include "ClassXml.h"

#include <algorithm>

namespace Cimom {

namespace {

std::string lower(std::string s) {
    std::transform(s.begin(), s.end(), s.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return s;
}

} // namespace

std::string ClassXml::literalText(CimClassDecl::Literal const& literal) {
    switch (literal.kind) {
    case CimClassDecl::Literal::Kind::Boolean:
        return literal.text == "true" ? "TRUE" : "FALSE";
    case CimClassDecl::Literal::Kind::String:
    case CimClassDecl::Literal::Kind::Integer:
    case CimClassDecl::Literal::Kind::Real:
    case CimClassDecl::Literal::Kind::Char:
    case CimClassDecl::Literal::Kind::Null:
        return literal.text;
    }
    return literal.text;
}

void ClassXml::writeValue(CimXmlWriter& out, CimClassDecl::Value const& value) {
    if (value.isArray) {
        out.open("VALUE.ARRAY");
        for (auto const& item : value.items) {
            if (item.kind == CimClassDecl::Literal::Kind::Null)
                out.empty("VALUE.NULL");
            else
                out.element("VALUE", literalText(item));
        }
        out.close();
    } else if (!value.items.empty() && value.items[0].kind != CimClassDecl::Literal::Kind::Null) {
        out.element("VALUE", literalText(value.items[0]));
    }
}

void ClassXml::writeQualifier(CimXmlWriter& out, CimClassDecl::Qualifier const& qualifier) {
    out.open("QUALIFIER", {{"NAME", qualifier.name}, {"TYPE", qualifier.type}});
    writeValue(out, qualifier.value);
    out.close();
}

void ClassXml::_writeProperty(CimXmlWriter& out, CimClassDecl::Property const& p,
                              Options const& options) {
    CimXmlWriter::Attributes attributes{{"NAME", p.name}};
    char const* tag = "PROPERTY";
    std::string const arraySize = std::to_string(p.arraySize);
    if (p.type == "reference") {
        tag = "PROPERTY.REFERENCE";
        attributes.add("REFERENCECLASS", p.refClass);
    } else {
        attributes.add("TYPE", p.type);
        if (p.isArray) {
            tag = "PROPERTY.ARRAY";
            if (p.arraySize > 0)
                attributes.add("ARRAYSIZE", arraySize);
        }
    }
    if (options.includeClassOrigin)
        attributes.add("CLASSORIGIN", p.classOrigin);
    if (p.propagated)
        attributes.add("PROPAGATED", "true");
    out.open(tag, attributes);
    if (options.includeQualifiers)
        for (auto const& q : p.qualifiers)
            writeQualifier(out, q);
    // A reference default would need a path; MOF files here carry none.
    if (p.defaultValue && p.type != "reference")
        writeValue(out, *p.defaultValue);
    out.close();
}

void ClassXml::_writeMethod(CimXmlWriter& out, CimClassDecl::Method const& m,
                            Options const& options) {
    CimXmlWriter::Attributes attributes{{"NAME", m.name}, {"TYPE", m.returnType}};
    if (options.includeClassOrigin)
        attributes.add("CLASSORIGIN", m.classOrigin);
    if (m.propagated)
        attributes.add("PROPAGATED", "true");
    out.open("METHOD", attributes);
    if (options.includeQualifiers)
        for (auto const& q : m.qualifiers)
            writeQualifier(out, q);
    for (auto const& p : m.parameters) {
        CimXmlWriter::Attributes pa{{"NAME", p.name}};
        char const* tag;
        std::string const arraySize = std::to_string(p.arraySize);
        if (p.type == "reference") {
            tag = p.isArray ? "PARAMETER.REFARRAY" : "PARAMETER.REFERENCE";
            pa.add("REFERENCECLASS", p.refClass);
        } else {
            tag = p.isArray ? "PARAMETER.ARRAY" : "PARAMETER";
            pa.add("TYPE", p.type);
        }
        if (p.isArray && p.arraySize > 0)
            pa.add("ARRAYSIZE", arraySize);
        out.open(tag, pa);
        if (options.includeQualifiers)
            for (auto const& q : p.qualifiers)
                writeQualifier(out, q);
        out.close();
    }
    out.close();
}

void ClassXml::writeClass(CimXmlWriter& out, CimClassDecl const& cls, Options const& options) {
    CimXmlWriter::Attributes attributes{{"NAME", cls.name}};
    if (!cls.superClass.empty())
        attributes.add("SUPERCLASS", cls.superClass);
    out.open("CLASS", attributes);
    if (options.includeQualifiers)
        for (auto const& q : cls.qualifiers)
            writeQualifier(out, q);
    for (auto const& p : cls.properties) {
        if (options.localOnly && p.propagated)
            continue;
        if (options.propertyList && !options.propertyList->count(lower(p.name)))
            continue;
        _writeProperty(out, p, options);
    }
    for (auto const& m : cls.methods) {
        if (options.localOnly && m.propagated)
            continue;
        _writeMethod(out, m, options);
    }
    out.close();
}

} // namespace Cimom
