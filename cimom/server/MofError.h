#pragma once

#include <stdexcept>
#include <string>

namespace Cimom {

// A MOF problem, always tied to the file and line so start-up errors can name both.
class MofError : public std::runtime_error {
public:
    MofError(std::string const& file, int line, std::string const& what)
        : std::runtime_error(file + ":" + std::to_string(line) + ": " + what), _file(file),
          _line(line) {}

    std::string const& file() const { return _file; }
    int line() const { return _line; }

private:
    std::string _file;
    int _line;
};

} // namespace Cimom
