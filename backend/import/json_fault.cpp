// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/json_fault.h"

#include "backend/import/import_errors.h"

namespace wirepane {

Phrase jsonFault(const QJsonParseError& problem) {
    switch (problem.error) {
        case QJsonParseError::MissingNameSeparator:
            return makeError<import_errors::jsonNameSeparator>();
        case QJsonParseError::UnterminatedArray:
            return makeError<import_errors::jsonListWithoutEnd>();
        case QJsonParseError::MissingValueSeparator:
            return makeError<import_errors::jsonValueSeparator>();
        case QJsonParseError::IllegalValue:
            return makeError<import_errors::jsonValue>();
        case QJsonParseError::TerminationByNumber:
            return makeError<import_errors::jsonNumberEnd>();
        case QJsonParseError::IllegalNumber:
            return makeError<import_errors::jsonNumber>();
        case QJsonParseError::IllegalEscapeSequence:
            return makeError<import_errors::jsonEscape>();
        case QJsonParseError::IllegalUTF8String:
            return makeError<import_errors::jsonUtf8>();
        case QJsonParseError::UnterminatedString:
            return makeError<import_errors::jsonTextWithoutEnd>();
        case QJsonParseError::MissingObject:
            return makeError<import_errors::jsonObjectMissing>();
        case QJsonParseError::DeepNesting:
            return makeError<import_errors::jsonTooDeep>();
        case QJsonParseError::DocumentTooLarge:
            return makeError<import_errors::jsonTooLarge>();
        case QJsonParseError::GarbageAtEnd:
            return makeError<import_errors::jsonBehindEnd>();
        case QJsonParseError::UnterminatedObject:
        case QJsonParseError::NoError:
            break;
    }
    return makeError<import_errors::jsonObjectWithoutEnd>();
}

}  // namespace wirepane
