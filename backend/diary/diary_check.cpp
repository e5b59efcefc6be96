// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/diary/diary_check.h"

#include "backend/diary/diary_errors.h"
#include "backend/diary/diary_lines.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr qsizetype mostFaults = 20;

class Check {
public:
    explicit Check(const DiaryHead& keptHead) : kept(keptHead) { report.head = noEntries(); }

    // The JSON of the line; empty: it has none.
    QByteArrayView take(QByteArrayView whole) {
        const std::int64_t number = ++report.head.count;
        const auto line = diaryLine(whole);
        if (!line) {
            tell(u"Entry %1 is no entry."_s.arg(number));
            return {};
        }
        if (sealOf(report.head.seal, line->json) != line->seal)
            tell(u"Entry %1 or what stands before it has been changed, or an entry is missing there."_s.arg(
                number));
        report.head.seal = line->seal.toByteArray();
        if (number == kept.count && report.head.seal != kept.seal)
            tellOfHead(u"Entry %1 is not the one that the store knows."_s.arg(number));
        // Within a text its quotes would be escaped.
        if (line->json.contains(R"("kind":"fault")"))
            tell(u"Entry %1 says that something was amiss already when it was written: %2"_s.arg(
                QString::number(number), QString::fromUtf8(line->json)));
        return line->json;
    }

    DiaryReport end() {
        if (report.head.count < kept.count)
            tellOfHead(u"The diary ends with entry %1; the store knows of %2."_s.arg(report.head.count)
                           .arg(kept.count));
        return std::move(report);
    }

    DiaryReport report;

private:
    void tell(const QString& fault) {
        if (report.faults.size() < mostFaults)
            report.faults.append(fault);
    }

    void tellOfHead(const QString& fault) {
        report.headFault = fault;
        tell(fault);
    }

    DiaryHead kept;
};

}  // namespace

Result<DiaryReport> checkDiary(const QString& path, const DiaryHead& kept,
                               const std::function<void(std::int64_t line, QByteArrayView json)>& onEntry) {
    Check check(kept);
    QFile file(path);
    if (!file.exists())
        return check.end();
    if (!file.open(QIODevice::ReadOnly))
        return makeError<diary_errors::notRead>(QDir::toNativeSeparators(path), file.errorString());
    while (!file.atEnd()) {
        QByteArray line = file.readLine();
        if (line.isEmpty())
            return makeError<diary_errors::notRead>(QDir::toNativeSeparators(path), file.errorString());
        if (!line.endsWith('\n')) {
            check.report.hasTornEnd = true;
            break;
        }
        line.chop(1);
        const QByteArrayView json = check.take(line);
        if (onEntry && !json.isEmpty())
            onEntry(check.report.head.count, json);
    }
    return check.end();
}

}  // namespace wirepane
