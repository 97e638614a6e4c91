#include "UpdateProblem.h"

UpdateProblem UpdateProblem::of(const HttpReply &reply)
{
    switch (reply.end) {
    case HttpReply::End::Answered:
        return reply.status == 200 ? UpdateProblem{}
                                   : UpdateProblem{Kind::Status, QString::number(reply.status)};
    case HttpReply::End::Refused:
        return {Kind::UnsafeAddress};
    case HttpReply::End::TimedOut:
        return {Kind::TimedOut};
    case HttpReply::End::TooLarge:
        return {Kind::TooLarge};
    case HttpReply::End::Cancelled:
        return {Kind::Stopped};
    case HttpReply::End::NotWritten:
        return {Kind::NotWritten};
    case HttpReply::End::Failed:
        return {Kind::Unreachable};
    }
    Q_UNREACHABLE();
}

QString UpdateProblem::sentence() const
{
    switch (kind) {
    case Kind::None:
        return {};
    case Kind::UnsafeAddress:
        return qtTrId("Update.Problem.UnsafeAddress");
    case Kind::Unreachable:
        return qtTrId("Update.Problem.Unreachable");
    case Kind::TimedOut:
        return qtTrId("Update.Problem.TimedOut");
    case Kind::TooLarge:
        return qtTrId("Update.Problem.TooLarge");
    case Kind::Status:
        return qtTrId("Update.Problem.Status").arg(detail);
    case Kind::NotAFeed:
        return qtTrId("Update.Problem.NotAFeed");
    case Kind::Unsigned:
        return qtTrId("Update.Problem.Unsigned");
    case Kind::WrongSignature:
        return qtTrId("Update.Problem.WrongSignature");
    case Kind::NoDate:
        return qtTrId("Update.Problem.NoDate");
    case Kind::Older:
        return qtTrId("Update.Problem.Older");
    case Kind::NoSignatureLibrary:
        return qtTrId("Update.Problem.NoSignatureLibrary");
    case Kind::Incomplete:
        return qtTrId("Update.Problem.Incomplete");
    case Kind::NotWritten:
        return qtTrId("Update.Problem.NotWritten").arg(detail);
    case Kind::Stopped:
        return qtTrId("Update.Problem.Stopped");
    }
    Q_UNREACHABLE();
}
