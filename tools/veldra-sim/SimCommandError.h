#pragma once
// A command that cannot be carried out: bad arguments, an unknown disk, a
// change that would leave the scenario invalid. The message is for the user.
#include <stdexcept>

class SimCommandError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};
