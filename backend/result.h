// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/error.h"

#include <utility>
#include <variant>

namespace wirepane {

// The one way to fail in the back end: a value, or an error. Reading the one that is not there is a fault of
// the caller and throws std::bad_variant_access.
template <class Value>
class Result {
public:
    Result(Value value) : content(std::move(value)) {}
    Result(Error error) : content(std::move(error)) {}

    explicit operator bool() const { return std::holds_alternative<Value>(content); }
    Value& value() { return std::get<Value>(content); }
    const Value& value() const { return std::get<Value>(content); }
    const Error& error() const { return std::get<Error>(content); }

private:
    std::variant<Value, Error> content;
};

struct Nothing {};
using Done = Result<Nothing>;

}  // namespace wirepane
