#pragma once

#include "DB.h"
#include "SchemaReflect.h"
#include "UserSchema.h"

#include <cstdio>
#include <cstdlib>

/// Ends the benchmark if what it measures does not work.
inline void expect(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "benchmark: %s\n", what);
    std::exit(2);
}

inline UserSchema sampleUser(int number)
{
    const QString digits = QString::number(number);
    const auto text = [&digits](QLatin1String words) { return QString(words + digits); };
    return {number,
            number % 7,
            number % 13,
            text(QLatin1String("user")),
            text(QLatin1String("password")),
            text(QLatin1String("What is remarkable about user "))};
}

/// Replaces the rows of the open database's table by this many new ones.
inline void fillUsers(int count)
{
    const QString table = QStringLiteral("User");
    DB::exec(QStringLiteral("DELETE FROM User"));
    DB::exec(QStringLiteral("BEGIN"));
    for (int i = 1; i <= count; ++i)
        expect(DB::exec(SchemaReflect::getFullInsertStatement(table, sampleUser(i))) == 0, "fill");
    DB::exec(QStringLiteral("COMMIT"));
}
