#pragma once
// Helpers for tests that need scenario files on disk.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace storagetest {

// A fresh directory, removed with everything in it at the end of the test.
class TempDir {
public:
    TempDir() {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "veldra-storage-XXXXXX").string();
        char* made = ::mkdtemp(pattern.data());
        if (made)
            _path = made;
    }
    ~TempDir() {
        std::error_code ignored;
        std::filesystem::remove_all(_path, ignored);
    }
    std::string file(std::string const& name) const { return (_path / name).string(); }

private:
    std::filesystem::path _path;
};

inline std::string readText(std::string const& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// Replaces the file the way veldra-sim does: write beside, then rename.
inline void replaceText(std::string const& path, std::string const& text) {
    std::string temp = path + ".tmp";
    std::ofstream(temp, std::ios::binary) << text;
    std::filesystem::rename(temp, path);
}

inline std::string scenarioPath(char const* name) {
    return std::string(VELDRA_DATA_DIR) + "/scenarios/" + name;
}

} // namespace storagetest
