// veldra-passwd: adds or replaces a user in veldra-cimd's users file.
#include "PasswordFile.h"

#include <CLI/CLI.hpp>

#include <termios.h>
#include <unistd.h>

#include <iostream>
#include <string>

using namespace Cimom;

namespace {

std::string readPassword(std::string const& prompt) {
    bool tty = isatty(STDIN_FILENO);
    termios saved{};
    if (tty) {
        std::cerr << prompt << std::flush;
        tcgetattr(STDIN_FILENO, &saved);
        termios quiet = saved;
        quiet.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        tcsetattr(STDIN_FILENO, TCSANOW, &quiet);
    }
    std::string password;
    bool got = static_cast<bool>(std::getline(std::cin, password));
    if (tty) {
        tcsetattr(STDIN_FILENO, TCSANOW, &saved);
        std::cerr << "\n";
    }
    if (!got)
        throw std::runtime_error("no password given on standard input");
    return password;
}

} // namespace

int main(int argc, char** argv) {
    CLI::App app{"Add or replace a user in the veldra-cimd users file"};
    std::string file;
    std::string user;
    bool sha512 = false;
    app.add_option("file", file, "users file (created when missing)")->required();
    app.add_option("user", user, "user name")->required();
    app.add_flag("--sha512", sha512, "hash with sha512-crypt instead of yescrypt");
    CLI11_PARSE(app, argc, argv);

    try {
        if (!PasswordFile::validUserName(user))
            throw std::runtime_error("bad user name '" + user + "'");
        std::string password = readPassword("Password for " + user + ": ");
        if (isatty(STDIN_FILENO) && readPassword("Again: ") != password)
            throw std::runtime_error("passwords differ");
        if (password.empty())
            throw std::runtime_error("empty password refused");
        PasswordFile::setUser(file, user, password, sha512 ? "$6$" : "$y$");
        // Read it back: a file the server cannot load is worse than an error here.
        if (!PasswordFile::load(file).verify(user, password))
            throw std::runtime_error("written hash does not verify");
    } catch (std::exception const& e) {
        std::cerr << "veldra-passwd: " << e.what() << "\n";
        return 1;
    }
    std::cout << "user " << user << " set in " << file << "\n";
    return 0;
}
