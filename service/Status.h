#pragma once

#include <string>
#include <string_view>
#include <variant>

/// The number with which each reply to a write begins. Clients read nothing but the number.
enum class Status {
    Done = 0,
    NotUnderstood = 1,
    ConditionRefused = 2,
    NoSuchRecord = 3,
    ExistsAlready = 4,
    NotNow = 5, ///< The same request may succeed later.
    NotAllowed = 6,
};

/// How a request ended: its status, a few English words for whoever reads a log or uses curl, and
/// the status of HTTP.
struct Outcome {
    Outcome(Status status, std::string_view words); ///< With HTTP's usual code for the status.
    Outcome(Status status, std::string_view words, int httpStatus);

    Status status;
    std::string words;
    int httpStatus;

    std::string text() const; ///< "3 no such record"
};

/// What was read out of a request, or why it was refused.
template <class T>
using Parsed = std::variant<T, Outcome>;
