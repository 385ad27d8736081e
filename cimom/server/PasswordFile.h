#pragma once

#include <map>
#include <string>

namespace Cimom {

// The users file: one "name:hash" line per user, the hash a crypt(3) string
// with its own salt (yescrypt by default). Comments start with '#'.
class PasswordFile {
public:
    // Throws std::runtime_error naming file and line when the file is bad.
    static PasswordFile load(std::string const& path);

    bool verify(std::string const& user, std::string const& password) const;
    bool empty() const { return _users.empty(); }
    size_t size() const { return _users.size(); }

    // A fresh salted hash; prefix "$y$" (yescrypt) or "$6$" (sha512-crypt).
    static std::string hash(std::string const& password, std::string const& prefix = "$y$");

    // Adds or replaces one user and rewrites the file atomically (mode 0600).
    static void setUser(std::string const& path, std::string const& user,
                        std::string const& password, std::string const& prefix = "$y$");

    static bool validUserName(std::string const& user);

private:
    std::map<std::string, std::string> _users;
};

} // namespace Cimom
