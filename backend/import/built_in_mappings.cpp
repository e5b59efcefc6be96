// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/built_in_mappings.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QDir& folder() {
    static const QDir builtIn(u":/mappings"_s);
    return builtIn;
}

}  // namespace

QStringList builtInMappings() {
    QStringList names;
    for (const QString& file : folder().entryList(QDir::Files, QDir::Name))
        names += file.chopped(qsizetype(sizeof ".json" - 1));
    return names;
}

Result<Mapping> mappingNamed(const QString& nameOrPath) {
    return Mapping::load(builtInMappings().contains(nameOrPath) ? folder().filePath(nameOrPath + u".json"_s)
                                                                : nameOrPath);
}

}  // namespace wirepane
