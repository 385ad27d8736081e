#pragma once
// Helpers for tests that need scenario files on disk.
#include "TempDir.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace storagetest {

// A fresh directory, removed with everything in it at the end of the test.
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
