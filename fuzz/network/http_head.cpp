// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/answer_reading.h"
#include "backend/network/content_coding.h"
#include "backend/network/http_values.h"
#include "fuzz/support/fuzz_input.h"

#include <QDateTime>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::int64_t now = 1772445600;
constexpr std::int64_t longest = 999'999'999;  // seconds that a head can state

void promiseDate(QByteArrayView text) {
    const auto date = httpDate(text);
    if (!date)
        return;
    const QString written =
        QLocale::c().toString(QDateTime::fromSecsSinceEpoch(*date, Qt::UTC), u"ddd, dd MMM yyyy HH:mm:ss"_s);
    promise(httpDate((written + u" GMT"_s).toLatin1()) == date, "a date written out is read as it was");
}

void promiseWaits(QByteArrayView text) {
    const auto wait = retryAfter(text, now);
    promise(!wait || *wait >= 0, "nobody waits for what has passed");
    const auto fresh = freshFor(text);
    promise(!fresh || (*fresh >= 0 && *fresh <= longest), "what is fresh is so for a time that is bounded");
}

void promiseLink(const QString& text) {
    const QString link = canonicalLink(text);
    promise(canonicalLink(link) == link, "a canonical link is its own");
}

}  // namespace

// What the head of an answer states, a value to a line: a date, a wait, a content type, a link, a coding;
// behind them the body in that coding.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    constexpr qint64 most = 100'000;
    FuzzInput input(bytes, size);
    promiseDate(input.line());
    promiseWaits(input.line());
    const QByteArray charset = charsetOf(input.line());
    promise(charset == charset.toLower(), "charsets are in lower case");
    promiseLink(QString::fromUtf8(input.line()));
    const QByteArray coding = input.line();
    QByteArray body = input.bytes();
    if (decodeBody(coding, body, most) == Decoding::Whole)
        promise(coding.trimmed().isEmpty() || body.size() <= most, "what is decoded keeps within its limit");
    return 0;
}

}  // namespace wirepane
