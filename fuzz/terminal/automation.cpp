// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/lines/line_splitter.h"
#include "fuzz/support/fuzz_input.h"
#include "terminal/automation/json_rpc.h"
#include "terminal/automation/params.h"

#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// The lines of a stream that comes in parts of this size.
QList<QByteArray> linesOf(const QByteArray& stream, qsizetype partSize) {
    QList<QByteArray> lines;
    const auto take = [&](const QByteArray& line) { lines += line; };
    LineSplitter splitter;
    for (qsizetype at = 0; at < stream.size(); at += partSize)
        splitter.feed(stream.mid(at, partSize), take, [] { promise(false, "these lines are short"); });
    splitter.finish(take);
    return lines;
}

QJsonObject objectOf(const QByteArray& line) {
    promise(line.indexOf('\n') == line.size() - 1, "an answer is one line");
    const QJsonDocument document = QJsonDocument::fromJson(line);
    promise(document.isObject(), "an answer is JSON");
    return document.object();
}

void promiseAnswers(const QJsonValue& id, const QJsonValue& result) {
    const QJsonObject answer = objectOf(resultLine(id, result));
    promise(answer.value(u"id"_s) == id && answer.value(u"result"_s) == result,
            "an answer arrives as it was");
    const QJsonObject error = objectOf(errorLine(id, {RpcCode::Refused, u"no"_s}));
    promise(error.value(u"id"_s) == id && error.value(u"error"_s).isObject(), "an error arrives as it was");
}

// Each parameter is read as every kind of value.
void readParams(const QJsonObject& object) {
    const QStringList names = object.keys();
    for (const QString& name : names) {
        Params params(object);
        if (const auto number = params.optionalNumber(name, -5, 500))
            promise(*number >= -5 && *number <= 500, "a number lies within its bounds");
        const std::int64_t large = Params(object).number(name, INT64_MIN / 1024, INT64_MAX / 1024);
        promise(large >= INT64_MIN / 1024 && large <= INT64_MAX / 1024, "a number lies within its bounds");
        const auto text = params.optionalText(name);
        promise(!text || *text == object.value(name).toString(), "a text is what was sent");
        params.optionalBool(name);
        if (const auto size = params.optionalSize(name))
            promise(
                size->width() >= 1 && size->width() <= 8192 && size->height() >= 1 && size->height() <= 8192,
                "a size lies within its bounds");
        const auto numbers = params.optionalNumbers(name);
        promise(!numbers || std::all_of(numbers->begin(), numbers->end(), [](int n) { return n >= 0; }),
                "rows count from 0 on");
        params.optionalObject(name);
        promise(!params.has(name) || params.error().has_value(), "no value is of every kind");
        promise(!params.error() || !params.error()->message.isEmpty(), "an error says what is wrong");
    }
}

void tryRequest(const QByteArray& line) {
    const auto parsed = parseRequest(line);
    if (const auto* rejected = std::get_if<RejectedLine>(&parsed)) {
        promise(!rejected->error.message.isEmpty(), "a rejection has a reason");
        promiseAnswers(rejected->id, QJsonObject());
        return;
    }
    const auto& request = std::get<RpcRequest>(parsed);
    promiseAnswers(request.id.isUndefined() ? QJsonValue() : request.id, request.params);
    readParams(request.params);
}

}  // namespace

// A client's requests; the first byte chooses the parts in which they come.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzInput input(bytes, size);
    const qsizetype partSize = 1 + input.byte();
    const QByteArray stream = input.bytes();
    const QList<QByteArray> lines = linesOf(stream, stream.size() + 1);
    promise(linesOf(stream, partSize) == lines, "lines do not depend on how they come in");
    for (const QByteArray& line : lines) {
        promise(!line.trimmed().isEmpty() && !line.contains('\n'), "a line is one, and not blank");
        tryRequest(line);
    }
    return 0;
}

}  // namespace wirepane
