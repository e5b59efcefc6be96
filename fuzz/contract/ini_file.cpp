// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/ini_file.h"

#include "fuzz/support/fuzz_input.h"

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr qsizetype longestValue = 1024;

// Every name that stands in the file is asked for.
void askForAll(const QByteArray& bytes) {
    const IniFile file = IniFile::parse(bytes);
    QString section;
    for (const QString& raw : QString::fromUtf8(bytes).split(u'\n')) {
        const QString line = raw.trimmed();
        if (line.startsWith(u'['))
            section = line.mid(1, line.indexOf(u']') - 1).trimmed();
        const QString key = line.left(line.indexOf(u'=')).trimmed();
        promise(file.text(section, key).size() <= longestValue, "a value is cut to what is asked for");
        const int number = file.number(section, key, -7);
        promise(number == -7 || file.text(section.toUpper(), key.toLower()).toInt() == number,
                "a number is what the text says, and case does not count in names");
    }
}

void promiseSameValue(const QByteArray& bytes) {
    QString value = QString::fromUtf8(bytes.left(2 * longestValue));
    value.remove(u'\n');
    const QString file = u"[Other]\nKey=no\n[S]\n key = \"%1\"\nkey=second\n"_s.arg(value);
    promise(IniFile::parse(file.toUtf8()).text(u"s"_s, u"KEY"_s) == value.left(longestValue),
            "a value in quotes is read as it was written");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const QByteArray file = FuzzInput(bytes, size).bytes();
    askForAll(file);
    promiseSameValue(file);
    return 0;
}

}  // namespace wirepane
