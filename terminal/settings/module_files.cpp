// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/settings/module_files.h"

#include <QDir>
#include <QSaveFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr qsizetype longestList = 1024;  // characters that the module reads of a value

QString shortName(QString name) {
    std::replace_if(
        name.begin(), name.end(), [](QChar c) { return c == u',' || c.isSpace() || c < u' '; }, u'-');
    return name.isEmpty() ? u"-"_s : name;
}

Done writeFile(const QString& path, const QString& content) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content.toUtf8()) < 0 || !file.commit())
        return Error{u"The file %1 cannot be written: %2."_s.arg(path, file.errorString())};
    return Nothing{};
}

}  // namespace

Done writeCategoryFile(const QString& folder, const std::vector<CategoryName>& categories) {
    QString ids;
    QString names;
    for (const CategoryName& category : categories) {
        const QString separator = ids.isEmpty() ? QString() : u","_s;
        const QString id = separator + QString::number(category.id);
        const QString name = separator + shortName(category.name);
        if (ids.size() + id.size() > longestList || names.size() + name.size() > longestList)
            break;
        ids += id;
        names += name;
    }
    // The quotation marks keep those that a name begins or ends with.
    return writeFile(QDir(folder).filePath(u"NewsService.ini"_s),
                     u"[CONFIG]\nCatId=\"%1\"\nSHORTNAME=\"%2\"\n"_s.arg(ids, names));
}

Done writeSwitchesFile(const QString& folder, const SearchSwitches& switches) {
    return writeFile(QDir(folder).filePath(u"Application.ini"_s),
                     u"[NewsCtrlSearchView]\nShowNormalSearch=%1\nShowWarningSearch=%2\n"_s
                         .arg(switches.normalSearch ? 1 : 0)
                         .arg(switches.warningSearch ? 1 : 0));
}

}  // namespace wirepane
