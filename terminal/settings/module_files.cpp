// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/settings/module_files.h"

#include "terminal/settings/settings_errors.h"

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
    const bool opened = file.open(QIODevice::WriteOnly);
    // The settings folder's files are their owner's alone.
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    if (!opened || file.write(content.toUtf8()) < 0 || !file.commit())
        return makeError<settings_errors::moduleFileNotWritten>(path, file.errorString());
    return Nothing{};
}

struct CategoryLists {
    QString ids;
    QString names;
    std::size_t count = 0;
};

CategoryLists listsOf(const std::vector<CategoryName>& categories) {
    CategoryLists lists;
    for (const CategoryName& category : categories) {
        const QString separator = lists.count == 0 ? QString() : u","_s;
        const QString id = separator + QString::number(category.id);
        const QString name = separator + shortName(category.name);
        if (lists.ids.size() + id.size() > longestList || lists.names.size() + name.size() > longestList)
            break;
        lists.ids += id;
        lists.names += name;
        ++lists.count;
    }
    return lists;
}

}  // namespace

Done writeCategoryFile(const QString& folder, const std::vector<CategoryName>& categories) {
    const CategoryLists lists = listsOf(categories);
    // The quotation marks keep those that a name begins or ends with.
    return writeFile(QDir(folder).filePath(u"NewsService.ini"_s),
                     u"[CONFIG]\nCatId=\"%1\"\nSHORTNAME=\"%2\"\n"_s.arg(lists.ids, lists.names));
}

bool categoryFileHoldsAll(const std::vector<CategoryName>& categories) {
    return listsOf(categories).count == categories.size();
}
Done writeSwitchesFile(const QString& folder, const SearchSwitches& switches) {
    return writeFile(QDir(folder).filePath(u"Application.ini"_s),
                     u"[NewsCtrlSearchView]\nShowNormalSearch=%1\nShowWarningSearch=%2\n"_s
                         .arg(switches.normalSearch ? 1 : 0)
                         .arg(switches.warningSearch ? 1 : 0));
}

}  // namespace wirepane
