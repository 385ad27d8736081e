#include "MofParser.h"

#include "MofError.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <strings.h>

namespace Cimom {

namespace {

constexpr int maxIncludeDepth = 16;
constexpr size_t maxFeatures = 1024;

std::set<std::string> const& dataTypes() {
    static std::set<std::string> const types{"boolean", "string", "char16", "datetime", "uint8",
                                             "sint8",   "uint16", "sint16", "uint32",   "sint32",
                                             "uint64",  "sint64", "real32", "real64",   "object"};
    return types;
}

std::string lower(std::string s) {
    std::transform(s.begin(), s.end(), s.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return s;
}

} // namespace

MofParser::MofParser(std::string defaultNamespace, ClassSink sink)
    : _namespace(std::move(defaultNamespace)), _sink(std::move(sink)) {
    // Types of the standard qualifiers we meet; others are inferred from the literal.
    for (char const* b :
         {"key", "association", "indication", "abstract", "required", "in", "out", "override",
          "deprecated", "static", "terminal", "aggregate", "aggregation", "composition", "write",
          "read", "experimental", "exception", "weak"})
        _qualifierTypes[b] = "boolean";
    for (char const* u : {"maxlen", "max", "min"})
        _qualifierTypes[u] = "uint32";
    for (char const* s : {"maxvalue", "minvalue"})
        _qualifierTypes[s] = "sint64";
}

void MofParser::parseFile(std::string const& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in)
        throw MofError(path, 0, "cannot open file");
    std::ostringstream text;
    text << in.rdbuf();
    std::string canonical = std::filesystem::weakly_canonical(path).string();
    if (!_openFiles.insert(canonical).second)
        throw MofError(path, 0, "file includes itself");
    MofTokenizer tokenizer(text.str(), path);
    try {
        _parseUnit(tokenizer, path, static_cast<int>(_openFiles.size()));
    } catch (...) {
        _openFiles.erase(canonical);
        throw;
    }
    _openFiles.erase(canonical);
}

void MofParser::parseText(std::string const& text, std::string const& fileName) {
    MofTokenizer tokenizer(text, fileName);
    _parseUnit(tokenizer, fileName, 1);
}

void MofParser::_parseUnit(MofTokenizer& tokenizer, std::string const& fileName, int depth) {
    // Includes nest: keep the outer reader's position and restore it afterwards.
    MofTokenizer* savedTokenizer = _tokenizer;
    std::string savedFile = _fileName;
    MofToken savedToken = _token;
    _tokenizer = &tokenizer;
    _fileName = fileName;
    _advance();
    while (_token.kind != MofToken::Kind::End) {
        if (_token.kind == MofToken::Kind::Pragma) {
            _parsePragma(depth);
        } else if (_isKeyword("qualifier")) {
            _parseQualifierDeclaration();
        } else {
            std::vector<CimClassDecl::Qualifier> qualifiers;
            if (_token.isPunct('['))
                qualifiers = _parseQualifierList();
            if (_isKeyword("class"))
                _parseClass(std::move(qualifiers));
            else if (_isKeyword("instance"))
                _skipInstance();
            else
                _fail("expected 'class', 'instance', 'qualifier' or '#pragma', found '" +
                      _token.text + "'");
        }
    }
    _tokenizer = savedTokenizer;
    _fileName = savedFile;
    _token = savedToken;
}

void MofParser::_advance() {
    _token = _tokenizer->next();
}

void MofParser::_fail(std::string const& what) const {
    throw MofError(_fileName, _token.line, what);
}

bool MofParser::_isKeyword(char const* word) const {
    return _token.kind == MofToken::Kind::Identifier && strcasecmp(_token.text.c_str(), word) == 0;
}

MofToken MofParser::_expect(MofToken::Kind kind, char const* what) {
    if (_token.kind != kind)
        _fail(std::string("expected ") + what + ", found '" +
              (_token.kind == MofToken::Kind::End ? std::string("end of file") : _token.text) +
              "'");
    MofToken taken = _token;
    _advance();
    return taken;
}

void MofParser::_expectPunct(char c) {
    if (!_token.isPunct(c))
        _fail(std::string("expected '") + c + "', found '" +
              (_token.kind == MofToken::Kind::End ? "end of file" : _token.text) + "'");
    _advance();
}

bool MofParser::_acceptPunct(char c) {
    if (!_token.isPunct(c))
        return false;
    _advance();
    return true;
}

void MofParser::_parsePragma(int depth) {
    int line = _token.line;
    _advance();
    std::string name = lower(_expect(MofToken::Kind::Identifier, "pragma name").text);
    _expectPunct('(');
    std::string value = _expect(MofToken::Kind::String, "pragma value").text;
    while (_token.kind == MofToken::Kind::String)
        value += _expect(MofToken::Kind::String, "string").text;
    _expectPunct(')');
    if (name == "namespace") {
        // "__Create"/"__Delete" style values are other managers' extensions.
        if (value.rfind("__", 0) != 0)
            _namespace = value;
    } else if (name == "include") {
        if (depth >= maxIncludeDepth)
            throw MofError(_fileName, line, "includes nested too deep");
        std::filesystem::path target(value);
        if (target.is_relative())
            target = std::filesystem::path(_fileName).parent_path() / target;
        // The name comes from the file: a bad one (too long, a folder, a
        // device) is this file's error, not a filesystem exception.
        std::error_code error;
        if (!std::filesystem::is_regular_file(target, error))
            throw MofError(_fileName, line, "included file not found: " + value);
        std::string canonical = std::filesystem::weakly_canonical(target, error).string();
        if (error)
            throw MofError(_fileName, line, "included file " + value + ": " + error.message());
        if (_openFiles.count(canonical))
            throw MofError(_fileName, line, "include cycle through " + value);
        std::ifstream in(target, std::ios::binary);
        std::ostringstream text;
        text << in.rdbuf();
        _openFiles.insert(canonical);
        MofTokenizer tokenizer(text.str(), target.string());
        try {
            _parseUnit(tokenizer, target.string(), depth + 1);
        } catch (...) {
            _openFiles.erase(canonical);
            throw;
        }
        _openFiles.erase(canonical);
    }
    // Other pragmas (locale, instancelocale, ...) carry nothing for a class repository.
}

void MofParser::_parseQualifierDeclaration() {
    _advance();
    std::string name = _expect(MofToken::Kind::Identifier, "qualifier name").text;
    _expectPunct(':');
    std::string type = lower(_expect(MofToken::Kind::Identifier, "qualifier type").text);
    if (!dataTypes().count(type))
        _fail("unknown qualifier type '" + type + "'");
    bool isArray = false;
    _parseArraySuffix(isArray);
    _qualifierTypes[lower(name)] = type;
    if (_acceptPunct('='))
        _parseValue();
    // Scope and flavor lists only steer MOF compilers; read them and move on.
    while (_acceptPunct(',')) {
        _expect(MofToken::Kind::Identifier, "scope or flavor");
        _expectPunct('(');
        while (!_token.isPunct(')')) {
            if (_token.kind == MofToken::Kind::End)
                _fail("unterminated qualifier declaration");
            _advance();
        }
        _expectPunct(')');
    }
    _expectPunct(';');
}

void MofParser::_parseClass(std::vector<CimClassDecl::Qualifier> qualifiers) {
    CimClassDecl cls;
    cls.line = _token.line;
    cls.file = _fileName;
    cls.nameSpace = _namespace;
    cls.qualifiers = std::move(qualifiers);
    _advance();
    cls.name = _expect(MofToken::Kind::Identifier, "class name").text;
    if (_acceptPunct(':'))
        cls.superClass = _expect(MofToken::Kind::Identifier, "superclass name").text;
    _expectPunct('{');
    while (!_token.isPunct('}')) {
        if (_token.kind == MofToken::Kind::End)
            _fail("class " + cls.name + " is not closed");
        // Each feature is checked against all before it for duplicates.
        if (cls.properties.size() + cls.methods.size() >= maxFeatures)
            _fail("class " + cls.name + " has more than " + std::to_string(maxFeatures) +
                  " properties and methods");
        _parseFeature(cls);
    }
    _advance();
    _expectPunct(';');
    for (auto& p : cls.properties)
        p.classOrigin = cls.name;
    for (auto& m : cls.methods)
        m.classOrigin = cls.name;
    _sink(std::move(cls));
}

void MofParser::_skipInstance() {
    _advance();
    if (!_isKeyword("of"))
        _fail("expected 'of' after 'instance'");
    _advance();
    _expect(MofToken::Kind::Identifier, "class name");
    while (!_token.isPunct('{')) {
        if (_token.kind == MofToken::Kind::End)
            _fail("instance without a body");
        _advance();
    }
    int nesting = 0;
    do {
        if (_token.kind == MofToken::Kind::End)
            _fail("instance is not closed");
        if (_token.isPunct('{'))
            ++nesting;
        if (_token.isPunct('}'))
            --nesting;
        _advance();
    } while (nesting > 0);
    _expectPunct(';');
}

std::vector<CimClassDecl::Qualifier> MofParser::_parseQualifierList() {
    std::vector<CimClassDecl::Qualifier> list;
    _expectPunct('[');
    do {
        list.push_back(_parseQualifier());
    } while (_acceptPunct(','));
    _expectPunct(']');
    return list;
}

CimClassDecl::Qualifier MofParser::_parseQualifier() {
    CimClassDecl::Qualifier q;
    q.name = _expect(MofToken::Kind::Identifier, "qualifier name").text;
    if (_acceptPunct('(')) {
        q.value = _parseValue();
        _expectPunct(')');
    } else if (_token.isPunct('{')) {
        q.value = _parseValue();
    } else {
        // A bare qualifier name means a boolean true.
        q.value.items.push_back({CimClassDecl::Literal::Kind::Boolean, "true"});
    }
    // Old-style flavors after a colon: ToSubclass, Translatable, ...
    if (_acceptPunct(':'))
        while (_token.kind == MofToken::Kind::Identifier)
            _advance();
    q.type = _qualifierType(q.name, q.value);
    return q;
}

std::string MofParser::_qualifierType(std::string const& name,
                                      CimClassDecl::Value const& value) const {
    auto found = _qualifierTypes.find(lower(name));
    if (found != _qualifierTypes.end())
        return found->second;
    for (auto const& item : value.items) {
        switch (item.kind) {
        case CimClassDecl::Literal::Kind::String:
            return "string";
        case CimClassDecl::Literal::Kind::Integer:
            return "sint64";
        case CimClassDecl::Literal::Kind::Real:
            return "real64";
        case CimClassDecl::Literal::Kind::Boolean:
            return "boolean";
        case CimClassDecl::Literal::Kind::Char:
            return "char16";
        case CimClassDecl::Literal::Kind::Null:
            break;
        }
    }
    return "string";
}

CimClassDecl::Value MofParser::_parseValue() {
    CimClassDecl::Value v;
    if (_acceptPunct('{')) {
        v.isArray = true;
        if (!_token.isPunct('}')) {
            do {
                v.items.push_back(_parseLiteral());
            } while (_acceptPunct(','));
        }
        _expectPunct('}');
    } else {
        v.items.push_back(_parseLiteral());
    }
    return v;
}

CimClassDecl::Literal MofParser::_parseLiteral() {
    using Kind = CimClassDecl::Literal::Kind;
    switch (_token.kind) {
    case MofToken::Kind::String: {
        std::string text = _token.text;
        _advance();
        // Adjacent string literals join, as in C.
        while (_token.kind == MofToken::Kind::String) {
            text += _token.text;
            _advance();
        }
        return {Kind::String, text};
    }
    case MofToken::Kind::Integer: {
        std::string text = _token.text;
        _advance();
        return {Kind::Integer, text};
    }
    case MofToken::Kind::Real: {
        std::string text = _token.text;
        _advance();
        return {Kind::Real, text};
    }
    case MofToken::Kind::Char: {
        std::string text = _token.text;
        _advance();
        return {Kind::Char, text};
    }
    case MofToken::Kind::Identifier:
        if (_isKeyword("true") || _isKeyword("false")) {
            std::string text = lower(_token.text);
            _advance();
            return {Kind::Boolean, text};
        }
        if (_isKeyword("null")) {
            _advance();
            return {Kind::Null, ""};
        }
        break;
    case MofToken::Kind::Punct:
    case MofToken::Kind::Pragma:
    case MofToken::Kind::End:
        break;
    }
    _fail("expected a value, found '" +
          (_token.kind == MofToken::Kind::End ? std::string("end of file") : _token.text) + "'");
}

int MofParser::_parseArraySuffix(bool& isArray) {
    if (!_acceptPunct('['))
        return 0;
    isArray = true;
    int size = 0;
    if (_token.kind == MofToken::Kind::Integer) {
        try {
            size = std::stoi(_token.text);
        } catch (std::out_of_range const&) {
            _fail("array size " + _token.text + " is out of range");
        }
        _advance();
    }
    _expectPunct(']');
    return size;
}

void MofParser::_parseFeature(CimClassDecl& cls) {
    std::vector<CimClassDecl::Qualifier> qualifiers;
    if (_token.isPunct('['))
        qualifiers = _parseQualifierList();
    int line = _token.line;
    std::string first = _expect(MofToken::Kind::Identifier, "type or class name").text;
    if (_isKeyword("ref")) {
        _advance();
        CimClassDecl::Property p;
        p.type = "reference";
        p.refClass = first;
        p.name = _expect(MofToken::Kind::Identifier, "reference name").text;
        p.qualifiers = std::move(qualifiers);
        if (_acceptPunct('='))
            p.defaultValue = _parseValue();
        _expectPunct(';');
        if (cls.findProperty(p.name))
            throw MofError(_fileName, line, "duplicate property " + p.name);
        cls.properties.push_back(std::move(p));
        return;
    }
    std::string type = lower(first);
    if (!dataTypes().count(type))
        throw MofError(_fileName, line, "unknown type '" + first + "'");
    std::string name = _expect(MofToken::Kind::Identifier, "property or method name").text;
    if (_acceptPunct('(')) {
        CimClassDecl::Method m;
        m.name = name;
        m.returnType = type;
        m.qualifiers = std::move(qualifiers);
        if (!_token.isPunct(')')) {
            do {
                m.parameters.push_back(_parseParameter());
            } while (_acceptPunct(','));
        }
        _expectPunct(')');
        _expectPunct(';');
        if (cls.findMethod(m.name))
            throw MofError(_fileName, line, "duplicate method " + m.name);
        cls.methods.push_back(std::move(m));
        return;
    }
    CimClassDecl::Property p;
    p.name = name;
    p.type = type;
    p.qualifiers = std::move(qualifiers);
    p.arraySize = _parseArraySuffix(p.isArray);
    if (_acceptPunct('=')) {
        p.defaultValue = _parseValue();
        if (p.defaultValue->isArray != p.isArray)
            _fail("default value of " + p.name + " does not match its array-ness");
    }
    _expectPunct(';');
    if (cls.findProperty(p.name))
        throw MofError(_fileName, line, "duplicate property " + p.name);
    cls.properties.push_back(std::move(p));
}

CimClassDecl::Parameter MofParser::_parseParameter() {
    CimClassDecl::Parameter p;
    if (_token.isPunct('['))
        p.qualifiers = _parseQualifierList();
    std::string first = _expect(MofToken::Kind::Identifier, "parameter type").text;
    if (_isKeyword("ref")) {
        _advance();
        p.type = "reference";
        p.refClass = first;
    } else {
        p.type = lower(first);
        if (!dataTypes().count(p.type))
            _fail("unknown parameter type '" + first + "'");
    }
    p.name = _expect(MofToken::Kind::Identifier, "parameter name").text;
    p.arraySize = _parseArraySuffix(p.isArray);
    // A default on a parameter is legal in newer MOF; it does not change the signature.
    if (_acceptPunct('='))
        _parseValue();
    return p;
}

} // namespace Cimom
