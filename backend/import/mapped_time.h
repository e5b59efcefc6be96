// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTimeZone>

#include <cstdint>
#include <optional>

namespace wirepane {

// A date or a time of day as a table writes it, such as "yMMdd" or "H:mm:ss": y is a year of any length, yyyy
// one of four digits, MM, dd, HH, mm and ss are two digits, M, d, H, m and s one or two, and anything else
// stands for itself. In a form of two-digit fields alone ("HHmmss") leading zeros may be missing ("70003").
class TimeForm {
public:
    // Fails, with a sentence, for a form without any field or with one field twice.
    static Result<TimeForm> parse(const QString& form);

    struct Parts {
        std::optional<int> year;
        int month = 1;
        int day = 1;
        int hour = 0;
        int minute = 0;
        int second = 0;
    };
    // Adds what the text says to the parts; false when it does not have this form.
    bool read(QStringView text, Parts& parts) const;

private:
    QRegularExpression pattern;
    QString fields;        // the letter of each group of the pattern, in order
    qsizetype digits = 0;  // of a form of two-digit fields alone; else 0
};

// How the rows of a table say when.
struct MappedTime {
    QStringList dateColumns;           // the first that is not empty counts
    std::optional<TimeForm> dateForm;  // none: any form that news formats have
    QString clockColumn;               // empty: the date column says it all
    std::optional<TimeForm> clockForm;
    int yearsFrom = 0;  // is added to the year
    QTimeZone zone = QTimeZone::utc();

    // Seconds since 1970 (UTC) of the years 1900 to 2199; the error quotes what cannot be read. A time of day
    // that is missing is midnight.
    Result<std::int64_t> read(const QString& date, const QString& clock) const;
};

}  // namespace wirepane
