// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/network/source_asker.h"

#include <cstdint>

namespace wirepane {

// Reads an answer by the source's definition, through the readers of files. A page for people, a list that is
// of another format or cannot be read is a fault and no news. `now`: seconds since 1970. Any thread.
SourceAnswer readAnswer(const NetworkSource& source, const HttpAnswer& answer, std::int64_t now);

// Adds to `read` what these records of ninjs, which a stream has sent, hold. Where they cannot be read, that
// is its fault, and it does not count as read.
void readRecords(const NetworkSource& source, const QByteArray& records, std::int64_t now,
                 SourceAnswer& read);

// What a file holds, as an answer: unchanged where it is the one that is known.
HttpAnswer answerOfFile(const QString& path, const Validators& known, qint64 largest);

// The same page under the forms in which links name it: without fragment, parameters that only count readers,
// and a slash at the end; http as https. Empty where it is no address of the web.
QString canonicalLink(const QString& link);

}  // namespace wirepane
