// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/feed/line_source.h"

#include "backend/import/import_errors.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {
constexpr std::size_t mostLines = 1000;   // of a portion
constexpr qint64 mostBytes = 512 * 1024;  // of a portion, about
}  // namespace

void LineSource::add(const QByteArray& line) {
    if (!begun) {
        const FeedLine first = parsedFeedLine(line, hello.service);
        begun = true;
        if (const auto* greeting = std::get_if<FeedHello>(&first)) {
            hello = *greeting;
            if (greet)
                greet(hello);
            return;
        }
    }
    waitingBytes += line.size();
    lines.emplace_back(line);
}

void LineSource::addRejected(const QString& reason) {
    begun = true;
    lines.emplace_back(Error{reason});
}

Done LineSource::read(const ItemVisitor& visit) {
    portion = 0;
    lastPosition.clear();
    qint64 bytes = 0;
    const auto begin = std::chrono::steady_clock::now();
    const auto isEnough = [&] {
        return portion >= mostLines || bytes >= mostBytes ||
               std::chrono::steady_clock::now() - begin >= longest;
    };
    while (portion < lines.size() && (portion == 0 || !isEnough())) {
        const Result<QByteArray>& line = lines[portion];
        ++portion;
        const Phrase place = makeError<import_errors::atLine>(settled + static_cast<qint64>(portion));
        if (!line) {
            if (!visit({line.error(), place, 0}))
                break;
            continue;
        }
        bytes += line.value().size();
        FeedLine parsed = parsedFeedLine(line.value(), hello.service);
        auto* record = std::get_if<FeedRecord>(&parsed);
        if (record == nullptr) {
            if (!visit({Error{u"A greeting can only be the first line."_s}, place, 0}))
                break;
            continue;
        }
        if (!record->position.isEmpty())
            lastPosition = record->position;
        if (!visit({std::move(record->item), place, 0}))
            break;
    }
    return Nothing{};
}

void LineSource::settle(const PortionOutcome& outcome) {
    const auto end = lines.begin() + static_cast<std::ptrdiff_t>(portion);
    for (auto line = lines.begin(); line != end; ++line)
        waitingBytes -= *line ? line->value().size() : 0;
    lines.erase(lines.begin(), end);
    settled += static_cast<qint64>(portion);
    portion = 0;
    if (tell)
        tell({settled, outcome});
}

}  // namespace wirepane
