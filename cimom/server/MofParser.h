#pragma once

#include "CimClassDecl.h"
#include "MofToken.h"
#include "MofTokenizer.h"

#include <functional>
#include <map>
#include <set>
#include <string>

namespace Cimom {

// Recursive-descent reader for the MOF subset our class files use: class
// declarations with qualifiers, properties, references, methods and
// parameters, qualifier declarations, #pragma namespace and #pragma include.
// Instance declarations are read and dropped: the repository holds classes.
class MofParser {
public:
    using ClassSink = std::function<void(CimClassDecl&&)>;

    MofParser(std::string defaultNamespace, ClassSink sink);

    // Throws MofError naming file and line on the first problem.
    void parseFile(std::string const& path);
    void parseText(std::string const& text, std::string const& fileName);

private:
    void _parseUnit(MofTokenizer& tokenizer, std::string const& fileName, int depth);
    void _advance();
    MofToken _expect(MofToken::Kind kind, char const* what);
    void _expectPunct(char c);
    bool _acceptPunct(char c);
    bool _isKeyword(char const* word) const;
    [[noreturn]] void _fail(std::string const& what) const;

    void _parsePragma(int depth);
    void _parseQualifierDeclaration();
    void _parseClass(std::vector<CimClassDecl::Qualifier> qualifiers);
    void _skipInstance();
    std::vector<CimClassDecl::Qualifier> _parseQualifierList();
    CimClassDecl::Qualifier _parseQualifier();
    CimClassDecl::Value _parseValue();
    CimClassDecl::Literal _parseLiteral();
    void _parseFeature(CimClassDecl& cls);
    CimClassDecl::Parameter _parseParameter();
    int _parseArraySuffix(bool& isArray);
    std::string _qualifierType(std::string const& name, CimClassDecl::Value const& value) const;

    std::string _namespace;
    ClassSink _sink;
    MofTokenizer* _tokenizer = nullptr;
    std::string _fileName;
    MofToken _token;
    std::map<std::string, std::string> _qualifierTypes; // lower-case name -> type
    std::set<std::string> _openFiles;                   // include cycle guard
};

} // namespace Cimom
