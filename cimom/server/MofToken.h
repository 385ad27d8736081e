#pragma once

#include <string>

namespace Cimom {

// One lexical unit of a MOF file; line is 1-based for error messages.
struct MofToken {
    enum class Kind { Identifier, String, Integer, Real, Char, Punct, Pragma, End };
    Kind kind = Kind::End;
    std::string text;
    int line = 0;

    bool isPunct(char c) const { return kind == Kind::Punct && text.size() == 1 && text[0] == c; }
};

} // namespace Cimom
