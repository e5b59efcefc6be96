// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/mapped_time.h"
#include "backend/import/news_time.h"
#include "fuzz/support/fuzz_input.h"

#include <QDateTime>

namespace wirepane {

namespace {

void promiseYear(std::int64_t time) {
    const int year = QDateTime::fromSecsSinceEpoch(time, Qt::UTC).date().year();
    promise(year >= 1900 && year < 2200, "times lie in the years 1900 to 2199");
}

void tryForm(const QString& form, const QString& date, const QString& clock) {
    const Result<TimeForm> parsed = TimeForm::parse(form);
    if (!parsed) {
        promise(!sentence(parsed.error()).isEmpty(), "a refusal has a reason");
        return;
    }
    MappedTime time;
    time.dateForm = parsed.value();
    time.yearsFrom = 1911;
    const Result<std::int64_t> read = time.read(date, clock);
    if (read)
        promiseYear(read.value());
    TimeForm::Parts parts;
    parsed.value().read(date, parts);
}

// The same text under a mapping's zone, which holds unless the text states its own.
void tryZone(const QString& date) {
    constexpr int east = 8 * 3600;
    MappedTime time;
    time.zone = QTimeZone(east);
    const Result<std::int64_t> read = time.read(date, {});
    const auto stated = statedTime(date);
    promise(!read || stated, "what is read is a time");
    if (read) {
        promiseYear(read.value());
        promise(read.value() == stated->moment() - (stated->hasZone ? 0 : east), "a zone is never ignored");
    }
}

}  // namespace

// Times as news formats and tables state them: a line with a form, one with a date, one with a time of day.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzInput input(bytes, size);
    const QString form = QString::fromUtf8(input.line());
    const QString date = QString::fromUtf8(input.line());
    const QString clock = QString::fromUtf8(input.line());
    tryForm(form, date, clock);
    tryZone(date);
    if (const auto time = newsTime(date)) {
        promiseYear(*time);
        const QString iso = QDateTime::fromSecsSinceEpoch(*time, Qt::UTC).toString(Qt::ISODate);
        promise(newsTime(iso) == time, "a time written out is read back as it was");
    }
    return 0;
}

}  // namespace wirepane
