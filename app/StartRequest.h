#pragma once

#include <QString>

/// What a start of the program asks for.
struct StartRequest {
    QString page; ///< Command name of a tool; empty: whatever is shown.
    /// With which the desktop lets the window take the focus; may be empty.
    QString activationToken;
};
