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

Phrase jsonFault(const JsonFault& fault) {
    switch (fault.must) {
        case JsonMust::BeText:
            return makeError<import_errors::mustBeText>();
        case JsonMust::BeNumber:
            return makeError<import_errors::mustBeAnyNumber>();
        case JsonMust::BeWholeNumber:
            return makeError<import_errors::mustBeNumber>(fault.least, fault.most);
        case JsonMust::BeTrueOrFalse:
            return makeError<import_errors::mustBeTrueOrFalse>();
        case JsonMust::BeList:
            return makeError<import_errors::mustBeList>();
        case JsonMust::BeObject:
            return makeError<import_errors::mustBeObject>();
        case JsonMust::BeThere:
            break;
    }
    return makeError<import_errors::isMissing>();
}

}  // namespace wirepane
