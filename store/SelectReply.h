#pragma once

#include "Record.h"

/// Appends the records of a web service's reply to a select, a JSON object whose member "RESULT" is
/// an array with an object for each record, in the array's order. Anything else gives none; an
/// element that is no object is passed over. Any thread.
void appendSelectReply(QByteArrayView reply, RecordList records);
