// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "fuzz/support/fuzz_input.h"
#include "host/contract/ini_file.h"
#include "terminal/settings/module_files.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr qsizetype longestList = 1024;

QStringList listed(const IniFile& file, const QString& key) {
    return file.text(u"CONFIG"_s, key, {}, longestList).split(u',');
}

}  // namespace

// The file of category names, a name per line, as the module reads it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const QTemporaryDir folder;
    std::vector<CategoryName> categories;
    for (const QString& name : FuzzInput(bytes, size).text().split(u'\n'))
        categories.push_back({std::int32_t(categories.size() * 7 + 1), name});
    promise(bool(writeCategoryFile(folder.path(), categories)), "the file is written");
    const IniFile file = IniFile::load(folder.filePath(u"NewsService.ini"_s));
    const QStringList ids = listed(file, u"CatId"_s);
    const QStringList names = listed(file, u"SHORTNAME"_s);
    const bool none = ids == QStringList(QString());
    promise(ids.size() == names.size() && ids.size() <= qsizetype(categories.size()),
            "ids and names are pairs");
    promise(none || categoryFileHoldsAll(categories) == (ids.size() == qsizetype(categories.size())),
            "what the file has room for is in it");
    for (qsizetype i = 0; i < ids.size() && !none; ++i)
        promise(ids.at(i).toInt() == categories.at(std::size_t(i)).id && !names.at(i).isEmpty(),
                "a category has its id and a name");
    return 0;
}

}  // namespace wirepane
