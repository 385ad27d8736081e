#include "InstanceXml.h"

#include "CimError.h"
#include "CimName.h"
#include "CimOperationError.h"
#include "ClassRepository.h"

#include <cstring>

namespace Cimom {

namespace {

constexpr size_t maxKeys = 64;

[[noreturn]] void invalid(std::string const& what) {
    throw CimOperationError(CimOperationError::invalidParameter, what);
}

std::string_view elementTypeName(CimValue const& value) {
    CMPIType element = value.elementType();
    if (element == CMPI_instance)
        return "string"; // embedded instances travel as text
    char const* known = CimValue::elementTypeName(element);
    return known ? std::string_view(known) : std::string_view("string");
}

char const* keyValueType(CMPIType type) {
    if (type == CMPI_boolean)
        return "boolean";
    if (type & (CMPI_UINT | CMPI_SINT | CMPI_REAL))
        return "numeric";
    return "string";
}

// Text of a value as CIM-XML writes it; CimError from the value layer becomes
// an invalid parameter here, as it only arises from what the client sent.
CimValue parseText(CMPIType type, std::string_view text) {
    try {
        return CimValue::fromText(type, text);
    } catch (CimError const& e) {
        invalid(e.description());
    }
}

std::string nameSpaceOf(pugi::xml_node namespacePath) {
    std::string ns;
    for (pugi::xml_node part : namespacePath.children("NAMESPACE")) {
        if (!ns.empty())
            ns += '/';
        ns += part.attribute("NAME").value();
    }
    return ns;
}

} // namespace

void InstanceXml::writeLocalNamespacePath(CimXmlWriter& out, std::string const& nameSpace) {
    out.open("LOCALNAMESPACEPATH");
    size_t start = 0;
    while (true) {
        size_t slash = nameSpace.find('/', start);
        out.empty("NAMESPACE",
                  {{"NAME",
                    nameSpace.substr(start, slash == std::string::npos ? slash : slash - start)}});
        if (slash == std::string::npos)
            break;
        start = slash + 1;
    }
    out.close();
}

void InstanceXml::writeInstanceName(CimXmlWriter& out, CimObjectPath const& path) {
    out.open("INSTANCENAME", {{"CLASSNAME", path.className()}});
    for (auto const& key : path.keys()) {
        out.open("KEYBINDING", {{"NAME", key.name}});
        if (key.value.type() == CMPI_ref && !key.value.isNull()) {
            writeValue(out, key.value);
        } else {
            out.element("KEYVALUE", key.value.isNull() ? "" : key.value.toText(),
                        {{"VALUETYPE", keyValueType(key.value.type())}});
        }
        out.close();
    }
    out.close();
}

void InstanceXml::writeInstancePath(CimXmlWriter& out, CimObjectPath const& path,
                                    std::string const& host) {
    out.open("INSTANCEPATH");
    out.open("NAMESPACEPATH");
    out.element("HOST", path.host().empty() ? host : path.host());
    writeLocalNamespacePath(out, path.nameSpace());
    out.close();
    writeInstanceName(out, path);
    out.close();
}

void InstanceXml::writeValue(CimXmlWriter& out, CimValue const& value) {
    if (value.isArray()) {
        bool refs = value.elementType() == CMPI_ref;
        out.open(refs ? "VALUE.REFARRAY" : "VALUE.ARRAY");
        for (CimValue const& e : value.elements()) {
            if (e.isNull())
                out.empty("VALUE.NULL");
            else
                writeValue(out, e);
        }
        out.close();
        return;
    }
    if (value.type() == CMPI_ref) {
        CimObjectPath const& path = value.asReference();
        out.open("VALUE.REFERENCE");
        if (!path.nameSpace().empty()) {
            // Every reference we hand out points into our own namespaces, so it
            // goes without HOST, as SFCB writes it: wbemcli then prints
            // "root/mwq:Class.keys", a path a user can paste back.
            out.open("LOCALINSTANCEPATH");
            writeLocalNamespacePath(out, path.nameSpace());
            writeInstanceName(out, path);
            out.close();
        } else {
            writeInstanceName(out, path);
        }
        out.close();
        return;
    }
    if (value.type() == CMPI_instance) {
        // Embedded instances travel as escaped CIM-XML text.
        CimXmlWriter inner;
        writeInstance(inner, value.asInstance(), InstanceOptions{});
        std::string const& text = inner.str();
        out.element("VALUE", text.substr(text.find('\n') + 1));
        return;
    }
    // Strings are the bulk of an answer; they go out without a copy.
    if (value.type() == CMPI_string || value.type() == CMPI_dateTime)
        out.element("VALUE", value.asString());
    else
        out.element("VALUE", value.toText());
}

namespace {

// The start and end tags of one property as the client reads them: the
// element and its type from the value, or from the declaration for a null.
InstanceXml::InstanceOptions::PropertyTags
propertyTags(std::string const& name, CimValue const& v,
             InstanceXml::InstanceOptions const& options) {
    CimClassDecl::Property const* decl = options.cls ? options.cls->findProperty(name) : nullptr;
    CimXmlWriter::Attributes attributes{{"NAME", name}};
    char const* tag;
    std::string_view type;
    if (v.elementType() == CMPI_ref ||
        (v.type() == CMPI_null && decl && decl->type == "reference")) {
        tag = "PROPERTY.REFERENCE";
        if (decl)
            attributes.add("REFERENCECLASS", decl->refClass);
    } else {
        type = v.type() == CMPI_null ? (decl ? std::string_view(decl->type) : "string")
                                     : elementTypeName(v);
        tag = v.isArray() || (v.type() == CMPI_null && decl && decl->isArray) ? "PROPERTY.ARRAY"
                                                                              : "PROPERTY";
        attributes.add("TYPE", type);
        if (v.elementType() == CMPI_instance)
            attributes.add("EmbeddedObject", "instance");
    }
    if (options.includeClassOrigin && decl)
        attributes.add("CLASSORIGIN", decl->classOrigin);
    CimXmlWriter open(false);
    open.open(tag, attributes);
    return {name, v.type(), open.take(), std::string("</") + tag + ">"};
}

} // namespace

void InstanceXml::writeInstance(CimXmlWriter& out, CimInstance const& instance,
                                InstanceOptions const& options) {
    out.open("INSTANCE", {{"CLASSNAME", instance.className()}});
    if (options.includeQualifiers && options.cls) {
        for (auto const& q : options.cls->qualifiers) {
            out.open("QUALIFIER", {{"NAME", q.name}, {"TYPE", q.type}});
            if (!q.value.isArray && !q.value.items.empty() &&
                q.value.items[0].kind != CimClassDecl::Literal::Kind::Null) {
                auto const& item = q.value.items[0];
                out.element("VALUE", item.kind == CimClassDecl::Literal::Kind::Boolean
                                         ? (item.text == "true" ? "TRUE" : "FALSE")
                                         : item.text);
            }
            out.close();
        }
    }
    if (options.tagsOf != options.cls || options.tagsWithOrigin != options.includeClassOrigin) {
        options.tags.clear();
        options.tagsOf = options.cls;
        options.tagsWithOrigin = options.includeClassOrigin;
    }
    auto const& properties = instance.properties();
    for (std::size_t i = 0; i < properties.size(); ++i) {
        auto const& p = properties[i];
        if (options.propertyList && !options.propertyList->count(CimName::lower(p.name)))
            continue;
        CimValue const& v = p.value;
        if (i >= options.tags.size())
            options.tags.resize(i + 1);
        InstanceOptions::PropertyTags& tags = options.tags[i];
        if (tags.open.empty() || tags.type != v.type() || tags.name != p.name) {
            tags = propertyTags(p.name, v, options);
        }
        out.raw(tags.open);
        if (!v.isNull())
            writeValue(out, v);
        out.raw(tags.close);
    }
    out.close();
}

CimObjectPath InstanceXml::readInstanceName(pugi::xml_node node, std::string const& nameSpace,
                                            ClassRepository const* classes) {
    if (std::strcmp(node.name(), "INSTANCENAME") != 0)
        invalid(std::string("expected INSTANCENAME, found ") + node.name());
    std::string className = node.attribute("CLASSNAME").value();
    if (className.empty())
        invalid("INSTANCENAME without CLASSNAME");
    CimObjectPath path(nameSpace, className);
    CimClassDecl const* cls = classes ? classes->find(nameSpace, className) : nullptr;
    if (node.child("KEYVALUE") || node.child("VALUE.REFERENCE"))
        invalid("keys of " + className + " need names");
    size_t keyCount = 0;
    for (pugi::xml_node binding : node.children("KEYBINDING")) {
        // Classes have a handful of keys; adding a key looks at all before it.
        if (++keyCount > maxKeys)
            invalid(className + " has more than " + std::to_string(maxKeys) + " keys");
        std::string name = binding.attribute("NAME").value();
        if (name.empty())
            invalid("KEYBINDING without NAME");
        if (pugi::xml_node ref = binding.child("VALUE.REFERENCE")) {
            path.addKey(name, CimValue::reference(readReference(ref, nameSpace, classes)));
            continue;
        }
        pugi::xml_node kv = binding.child("KEYVALUE");
        if (!kv)
            invalid("KEYBINDING " + name + " without a value");
        std::string text = kv.text().get();
        std::string valueType = kv.attribute("VALUETYPE").value();
        if (valueType.empty())
            valueType = "string";
        CimClassDecl::Property const* decl = cls ? cls->findProperty(name) : nullptr;
        CMPIType type = CMPI_null;
        if (std::string explicitType = kv.attribute("TYPE").value(); !explicitType.empty())
            type = CimValue::typeFromName(explicitType);
        else if (decl && decl->type != "reference")
            type = CimValue::typeFromName(decl->type);
        if (type == CMPI_null) {
            if (valueType == "boolean") {
                type = CMPI_boolean;
            } else if (valueType == "numeric") {
                bool negative = !text.empty() && text[0] == '-';
                bool real = text.find_first_of(".eE") != std::string::npos;
                type = real ? CMPI_real64 : negative ? CMPI_sint64 : CMPI_uint64;
            } else if (valueType == "string") {
                type = CMPI_string;
            } else {
                invalid("KEYVALUE of " + name + " has VALUETYPE " + valueType);
            }
        }
        path.addKey(name, parseText(type, text));
    }
    return path;
}

CimObjectPath InstanceXml::readReference(pugi::xml_node valueReference,
                                         std::string const& nameSpace,
                                         ClassRepository const* classes) {
    pugi::xml_node inner = valueReference.first_child();
    std::string tag = inner.name();
    if (tag == "INSTANCEPATH") {
        pugi::xml_node nsPath = inner.child("NAMESPACEPATH");
        std::string ns = nameSpaceOf(nsPath.child("LOCALNAMESPACEPATH"));
        CimObjectPath path =
            readInstanceName(inner.child("INSTANCENAME"), ns.empty() ? nameSpace : ns, classes);
        path.setHost(nsPath.child("HOST").text().get());
        return path;
    }
    if (tag == "LOCALINSTANCEPATH") {
        std::string ns = nameSpaceOf(inner.child("LOCALNAMESPACEPATH"));
        return readInstanceName(inner.child("INSTANCENAME"), ns.empty() ? nameSpace : ns, classes);
    }
    if (tag == "INSTANCENAME")
        return readInstanceName(inner, nameSpace, classes);
    if (tag == "CLASSNAME")
        return CimObjectPath(nameSpace, inner.attribute("NAME").value());
    if (tag == "LOCALCLASSPATH" || tag == "CLASSPATH") {
        pugi::xml_node local = tag == "CLASSPATH"
                                   ? inner.child("NAMESPACEPATH").child("LOCALNAMESPACEPATH")
                                   : inner.child("LOCALNAMESPACEPATH");
        std::string ns = nameSpaceOf(local);
        return CimObjectPath(ns.empty() ? nameSpace : ns,
                             inner.child("CLASSNAME").attribute("NAME").value());
    }
    invalid("VALUE.REFERENCE holds no path");
}

CimValue InstanceXml::readParamValue(pugi::xml_node paramValue, CMPIType type,
                                     std::string const& nameSpace, ClassRepository const* classes) {
    CMPIType element = static_cast<CMPIType>(type & ~CMPI_ARRAY);
    if (pugi::xml_node ref = paramValue.child("VALUE.REFERENCE"))
        return CimValue::reference(readReference(ref, nameSpace, classes));
    if (pugi::xml_node refs = paramValue.child("VALUE.REFARRAY")) {
        std::vector<CimValue> items;
        for (pugi::xml_node r : refs.children()) {
            if (std::strcmp(r.name(), "VALUE.NULL") == 0)
                items.push_back(CimValue::null(CMPI_ref));
            else
                items.push_back(CimValue::reference(readReference(r, nameSpace, classes)));
        }
        return CimValue::array(CMPI_ref, std::move(items));
    }
    // Untyped values that the class does not declare travel as strings.
    if (element == CMPI_null || element == CMPI_ref)
        element = CMPI_string;
    if (pugi::xml_node array = paramValue.child("VALUE.ARRAY")) {
        std::vector<CimValue> items;
        for (pugi::xml_node v : array.children()) {
            if (std::strcmp(v.name(), "VALUE.NULL") == 0)
                items.push_back(CimValue::null(element));
            else
                items.push_back(parseText(element, v.text().get()));
        }
        return CimValue::array(element, std::move(items));
    }
    if (pugi::xml_node v = paramValue.child("VALUE")) {
        if (type & CMPI_ARRAY)
            invalid(std::string("parameter ") + paramValue.attribute("NAME").value() +
                    " needs an array");
        return parseText(element, v.text().get());
    }
    return CimValue::null(type == CMPI_null ? CMPI_string : type);
}

} // namespace Cimom
