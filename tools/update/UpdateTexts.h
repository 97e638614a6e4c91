#pragma once

#include <QString>

class UpdateChecker;
struct UpdateItem;

/// What the update page says. Everything is plain text. Interface thread only.
namespace UpdateTexts
{

/// The state in one sentence.
QString headline(const UpdateChecker &checker);

/// What else there is to know or do about it; may be empty.
QString detail(const UpdateChecker &checker);

/// When the last check was, and, before the first one since the start, what it found.
QString lastCheck(const UpdateChecker &checker);

/// How far the download is: "3.1 MB of 12.4 MB".
QString progress(const UpdateChecker &checker);

/// The notes of a version without any markup.
QString notes(const UpdateItem &item);

} // namespace UpdateTexts
