#pragma once

#include "MofToken.h"

#include <string>

namespace Cimom {

// Splits MOF text into tokens. String literals come back unescaped; adjacent
// string literals are left for the parser to join.
class MofTokenizer {
public:
    MofTokenizer(std::string text, std::string fileName);

    MofToken next();
    std::string const& fileName() const { return _fileName; }

private:
    void _skipSpaceAndComments();
    MofToken _readString();
    MofToken _readChar();
    MofToken _readNumber();
    char _unescape();
    [[noreturn]] void _fail(std::string const& what) const;

    std::string _text;
    std::string _fileName;
    size_t _pos = 0;
    int _line = 1;
};

} // namespace Cimom
