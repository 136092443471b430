// What an operation of the table engine answers: success, or failure with a sentence for the user.
#pragma once

#include <string>
#include <utility>

namespace dbf {

struct Result {
    bool ok = true;
    std::string message;

    explicit operator bool() const { return ok; }

    static Result success() { return {}; }
    static Result failure(std::string why) { return {false, std::move(why)}; }
};

} // namespace dbf
