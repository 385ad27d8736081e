#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Cimom {

// A class as declared in MOF: what GetClass returns and what method calls use
// to type untyped arguments. Plain data; ClassRepository owns and indexes it.
struct CimClassDecl {
    // One literal; the kind decides how it is written back (quoted or not).
    struct Literal {
        enum class Kind { String, Integer, Real, Boolean, Char, Null };
        Kind kind = Kind::Null;
        std::string text;
    };

    // A value with an array flag; a scalar holds exactly one literal.
    struct Value {
        bool isArray = false;
        std::vector<Literal> items;
    };

    struct Qualifier {
        std::string name;
        std::string type; // CIM type name, e.g. "boolean", "string"
        Value value;
    };

    struct Property {
        std::string name;
        std::string type;     // CIM type, or "reference"
        std::string refClass; // set for references
        bool isArray = false;
        int arraySize = 0; // 0: unbounded
        std::vector<Qualifier> qualifiers;
        std::optional<Value> defaultValue;
        std::string classOrigin; // class that declared it
        bool propagated = false;
    };

    struct Parameter {
        std::string name;
        std::string type;
        std::string refClass;
        bool isArray = false;
        int arraySize = 0;
        std::vector<Qualifier> qualifiers;
    };

    struct Method {
        std::string name;
        std::string returnType;
        std::vector<Qualifier> qualifiers;
        std::vector<Parameter> parameters;
        std::string classOrigin;
        bool propagated = false;
    };

    std::string name;
    std::string superClass;
    std::string nameSpace;
    std::string file; // where it was declared, for duplicate reports
    int line = 0;
    std::vector<Qualifier> qualifiers;
    std::vector<Property> properties;
    std::vector<Method> methods;

    Property const* findProperty(std::string const& propertyName) const;
    Method const* findMethod(std::string const& methodName) const;
    bool hasQualifier(std::string const& qualifierName) const;
};

} // namespace Cimom
