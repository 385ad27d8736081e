#pragma once
// A fresh directory per test, removed afterwards.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

class TempDir {
public:
    TempDir() {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "veldra-common-XXXXXX").string();
        char* made = mkdtemp(pattern.data());
        _path = made ? made : pattern;
    }
    ~TempDir() {
        std::error_code ec;
        std::filesystem::remove_all(_path, ec);
    }
    std::string file(std::string const& name) const { return (_path / name).string(); }
    std::string write(std::string const& name, std::string const& text) const {
        std::ofstream(file(name)) << text;
        return file(name);
    }

private:
    std::filesystem::path _path;
};
