#include "PasswordFile.h"

#include <crypt.h>
#include <fcntl.h>
#include <openssl/crypto.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <fstream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace Cimom {

bool PasswordFile::validUserName(std::string const& user) {
    if (user.empty() || user.size() > 64)
        return false;
    for (char c : user)
        if (c == ':' || c == '\n' || c == '\r' || static_cast<unsigned char>(c) < 0x20)
            return false;
    return true;
}

PasswordFile PasswordFile::load(std::string const& path) {
    std::ifstream in(path);
    if (!in)
        throw std::runtime_error("cannot read users file " + path);
    PasswordFile file;
    std::string line;
    int lineNo = 0;
    while (std::getline(in, line)) {
        ++lineNo;
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.empty() || line[0] == '#')
            continue;
        auto colon = line.find(':');
        std::string user = line.substr(0, colon);
        std::string hashed = colon == std::string::npos ? "" : line.substr(colon + 1);
        if (!validUserName(user) || hashed.size() < 4 || hashed[0] != '$')
            throw std::runtime_error(path + ":" + std::to_string(lineNo) + ": expected name:hash");
        file._users[user] = hashed;
    }
    return file;
}

bool PasswordFile::verify(std::string const& user, std::string const& password) const {
    auto found = _users.find(user);
    // Unknown users still pay for one hash so timing does not tell names apart.
    std::string const& setting = found != _users.end() ? found->second
                                 : _users.empty()      ? std::string("$6$x$")
                                                       : _users.begin()->second;
    auto data = std::make_unique<crypt_data>();
    std::memset(data.get(), 0, sizeof(crypt_data));
    char const* result = crypt_r(password.c_str(), setting.c_str(), data.get());
    // crypt_r reads up to the first NUL: "right\0x" would pass as "right".
    if (password.find('\0') != std::string::npos)
        return false;
    if (found == _users.end() || !result || result[0] == '*')
        return false;
    size_t len = std::strlen(result);
    return len == found->second.size() && CRYPTO_memcmp(result, found->second.data(), len) == 0;
}

std::string PasswordFile::hash(std::string const& password, std::string const& prefix) {
    char salt[CRYPT_GENSALT_OUTPUT_SIZE];
    // A null random source makes libcrypt draw from the system's generator.
    if (!crypt_gensalt_rn(prefix.c_str(), 0, nullptr, 0, salt, sizeof salt))
        throw std::runtime_error("cannot make a salt for " + prefix);
    auto data = std::make_unique<crypt_data>();
    std::memset(data.get(), 0, sizeof(crypt_data));
    char const* result = crypt_r(password.c_str(), salt, data.get());
    if (!result || result[0] == '*')
        throw std::runtime_error("password hashing failed");
    return result;
}

void PasswordFile::setUser(std::string const& path, std::string const& user,
                           std::string const& password, std::string const& prefix) {
    if (!validUserName(user))
        throw std::runtime_error("bad user name '" + user + "'");
    std::vector<std::string> lines;
    {
        std::ifstream in(path);
        std::string line;
        while (in && std::getline(in, line)) {
            auto colon = line.find(':');
            if (!line.empty() && line[0] != '#' && colon != std::string::npos &&
                line.substr(0, colon) == user)
                continue;
            lines.push_back(line);
        }
    }
    lines.push_back(user + ":" + hash(password, prefix));
    std::string tmp = path + ".tmp." + std::to_string(getpid());
    int fd = ::open(tmp.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (fd < 0)
        throw std::runtime_error("cannot write " + tmp + ": " + std::strerror(errno));
    std::string content;
    for (auto const& l : lines)
        content += l + "\n";
    bool ok = ::write(fd, content.data(), content.size()) == static_cast<ssize_t>(content.size());
    ok = ::fsync(fd) == 0 && ok;
    ::close(fd);
    if (!ok || std::rename(tmp.c_str(), path.c_str()) != 0) {
        std::remove(tmp.c_str());
        throw std::runtime_error("cannot replace " + path);
    }
}

} // namespace Cimom
