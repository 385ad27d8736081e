#include "PasswordFile.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

using namespace Cimom;

namespace {

struct TempFile {
    std::string path =
        (std::filesystem::temp_directory_path() / ("users-" + std::to_string(getpid()))).string();
    ~TempFile() { std::filesystem::remove(path); }
};

} // namespace

// Catches hashes that verify the wrong password, lose their salt, or a
// replaced user whose old password still works.
TEST(PasswordFile, SetVerifyAndReplace) {
    TempFile file;
    PasswordFile::setUser(file.path, "alice", "first secret");
    PasswordFile::setUser(file.path, "bob", "bobs secret", "$6$");
    PasswordFile::setUser(file.path, "alice", "second secret");

    PasswordFile users = PasswordFile::load(file.path);
    EXPECT_EQ(users.size(), 2u);
    EXPECT_TRUE(users.verify("alice", "second secret"));
    EXPECT_FALSE(users.verify("alice", "first secret"));
    EXPECT_TRUE(users.verify("bob", "bobs secret"));
    EXPECT_FALSE(users.verify("bob", "bobs secreT"));
    EXPECT_FALSE(users.verify("carol", "bobs secret"));
    EXPECT_FALSE(users.verify("", ""));

    struct stat st {};
    ASSERT_EQ(stat(file.path.c_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0600u) << "the hash file must not be readable by others";

    std::ifstream in(file.path);
    std::string line;
    std::getline(in, line);
    EXPECT_EQ(line.rfind("bob:$6$", 0), 0u) << line;
    std::getline(in, line);
    EXPECT_EQ(line.rfind("alice:$y$", 0), 0u) << line;

    // Same password, fresh salt each time.
    EXPECT_NE(PasswordFile::hash("same"), PasswordFile::hash("same"));
}

// Catches a damaged users file being accepted (and then refusing everyone, or
// worse) instead of stopping the server with the line named.
TEST(PasswordFile, BadFilesAreRefusedWithTheLine) {
    TempFile file;
    std::ofstream(file.path) << "# users\n\nalice:$6$salt$hash\nbroken line\n";
    try {
        PasswordFile::load(file.path);
        FAIL() << "accepted";
    } catch (std::runtime_error const& e) {
        EXPECT_NE(std::string(e.what()).find(":4:"), std::string::npos) << e.what();
    }
    EXPECT_THROW(PasswordFile::load(file.path + ".missing"), std::runtime_error);
    EXPECT_THROW(PasswordFile::setUser(file.path, "a:b", "x"), std::runtime_error);
    EXPECT_FALSE(PasswordFile::validUserName(""));
    EXPECT_TRUE(PasswordFile::validUserName("ops-admin"));
}
