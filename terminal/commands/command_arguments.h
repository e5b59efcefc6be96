// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCommandLineParser>

#include <cstdint>
#include <limits>
#include <optional>

namespace wirepane {

// The arguments of one command: its options, those that all commands share (--help, --version, --store,
// --now), and what is said about wrong ones.
class CommandArguments {
public:
    // `command` is the first argument that names it; empty for the program without a command.
    CommandArguments(const QString& command, const QString& description);

    QCommandLineParser parser;

    // Reads the process's arguments. The exit status when the program is to end: after --help, --version or a
    // wrong argument, which are answered on standard output or standard error.
    std::optional<int> read();
    // The arguments that are no options, without the command.
    QStringList rest() const;

    // The value of an option as a whole number; `fallback` when it was not given. Wrong values are kept in
    // fault().
    std::int64_t number(const QString& option, std::int64_t fallback, std::int64_t least, std::int64_t most);
    // The store that --store names, or the user's own.
    QString storeFile() const;
    // The same for who only reads: the sample wire's when that is all there is.
    QString storeToRead() const;
    // Sets the host's clock as --now says.
    void applyNow();
    // Something about the arguments is wrong; the first such thing counts.
    void fail(const QString& sentence);
    // The exit status when a value was wrong, which is then said on standard error.
    std::optional<int> fault() const;

private:
    QString command;
    QString faultSentence;
};

// Where the user's settings stand when no option says otherwise.
QString defaultConfigFolder();

// A moment as --now takes it, "2026-03-02T09:30:00" in local time unless it names its offset, in seconds
// since 1970 (UTC); nothing when it is none.
std::optional<std::int64_t> momentOf(const QString& text);

}  // namespace wirepane
