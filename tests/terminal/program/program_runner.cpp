// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/terminal/program/program_runner.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace wirepane::test {

namespace {
constexpr int longestRunMs = 120000;
}

QString programFile() {
    return QStringLiteral(WIREPANE_PROGRAM);
}

ProgramOutcome runProgram(const QStringList& arguments, const QString& output) {
    QProcess process;
    if (!output.isEmpty())
        process.setStandardOutputFile(output);
    process.start(programFile(), arguments);
    process.closeWriteChannel();
    if (!process.waitForFinished(longestRunMs)) {
        process.kill();
        process.waitForFinished();
        return {-1, {}, u"did not end"_s};
    }
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QString Scratch::write(const QString& name, const QByteArray& content) const {
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        return {};
    return file.fileName();
}

QByteArray ninjsItem(const QString& uri, const QString& headline, const QString& body, const QString& when) {
    const QJsonObject item{{u"uri"_s, uri},
                           {u"type"_s, u"text"_s},
                           {u"versioncreated"_s, when},
                           {u"headline"_s, headline},
                           {u"body_text"_s, body}};
    return QJsonDocument(item).toJson(QJsonDocument::Compact);
}

}  // namespace wirepane::test
