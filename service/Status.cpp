#include "Status.h"

namespace
{

int usualHttpStatus(Status status)
{
    switch (status) {
    case Status::Done:
        return 200;
    case Status::NotUnderstood:
    case Status::ConditionRefused:
        return 400;
    case Status::NoSuchRecord:
        return 404;
    case Status::ExistsAlready:
        return 409;
    case Status::NotNow:
        return 503;
    case Status::NotAllowed:
        return 403;
    }
    return 500;
}

} // namespace

Outcome::Outcome(Status result, std::string_view explanation)
    : Outcome(result, explanation, usualHttpStatus(result))
{
}

Outcome::Outcome(Status result, std::string_view explanation, int code)
    : status(result), words(explanation), httpStatus(code)
{
}

std::string Outcome::text() const
{
    return std::to_string(int(status)) + ' ' + words;
}
