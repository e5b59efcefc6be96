// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "fuzz/support/fuzz_input.h"
#include "terminal/settings/settings_file.h"
#include "terminal/settings/terminal_settings.h"
#include "terminal/settings/workspace_layout.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// A folder that is empty again at the end of each run; its settings file has another name each time, because
// the platform remembers files by name.
class SettingsFolder {
public:
    SettingsFolder() {
        static int number = 0;
        path = folder().filePath(u"%1.json"_s.arg(++number));
        older = folder().filePath(u"%1.ini"_s.arg(number));
    }
    ~SettingsFolder() {
        QDir all(folder().path());
        for (const QString& name : all.entryList(QDir::Files))
            all.remove(name);
    }
    SettingsFolder(const SettingsFolder&) = delete;
    SettingsFolder& operator=(const SettingsFolder&) = delete;

    QString path;
    QString older;

private:
    static QTemporaryDir& folder() {
        static QTemporaryDir only;
        return only;
    }
};

QByteArray contentOf(const QString& path) {
    QFile file(path);
    promise(file.open(QIODevice::ReadOnly), "a file that was kept is there");
    return file.readAll();
}

bool isSame(const WorkspaceLayout& a, const WorkspaceLayout& b) {
    const auto isSameSymbol = [](const auto& left, const auto& right) {
        return left.first == right.first && left.second.market == right.second.market &&
               left.second.code == right.second.code && left.second.name == right.second.name;
    };
    return a.views == b.views && a.arrangement == b.arrangement && a.activePlace == b.activePlace &&
           std::equal(a.symbols.begin(), a.symbols.end(), b.symbols.begin(), b.symbols.end(), isSameSymbol);
}

void promiseLayout(const WorkspaceLayout& layout) {
    promise(layout.views.size() <= std::size_t(WorkspaceLayout::mostViews), "a layout has few views");
    for (auto view = layout.views.begin(); view != layout.views.end(); ++view) {
        promise(view->place >= 0 && view->place <= WorkspaceLayout::lastPlace, "a view has a place");
        promise(view->newsType >= NewsType::Full && view->newsType <= NewsType::Bare, "a view has a type");
        promise(std::none_of(layout.views.begin(), view,
                             [&](const StoredView& other) { return other.place == view->place; }),
                "no two views have one place");
    }
    for (const auto& [group, symbol] : layout.symbols)
        promise(group > 0 && symbol.market > 0 && !symbol.code.isEmpty(), "a link group shows a symbol");
}

void writeFile(const QString& path, const QByteArray& content) {
    QFile file(path);
    promise(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(), "a file is written");
}

// A settings file as a user may have left it; one of the older form is carried over.
void tryFile(const QByteArray& content, bool isOlder) {
    const SettingsFolder folder;
    writeFile(isOlder ? folder.older : folder.path, content);
    SettingsFile file(folder.path, folder.older);
    if (isOlder)
        promise(contentOf(folder.older) == content, "an older file stays as it is");
    else if (!file.message().isEmpty())
        promise(contentOf(folder.path + u".damaged-1"_s) == content, "a damaged file is kept as it was");
    const TerminalSettings settings(file);
    promise(settings.fontSize() >= TerminalSettings::smallestFont &&
                settings.fontSize() <= TerminalSettings::largestFont,
            "a font can be read");
    const WorkspaceLayout layout = WorkspaceLayout::read(file);
    promiseLayout(layout);
    layout.write(file);
    file.setValue(u"fuzz"_s, u"saved"_s, true);
    promise(bool(file.save()), "settings are saved");
    const SettingsFile again(folder.path, folder.older);
    promise(again.message().isEmpty() && again.value(u"fuzz"_s, u"saved"_s).toBool(),
            "what is saved is read");
    promise(isSame(WorkspaceLayout::read(again), layout), "a layout is read back as it was");
}

// One value under names of any kind.
void tryValue(const QString& text) {
    const SettingsFolder folder;
    const QString group = text.section(u'\n', 0, 0);
    const QString name = text.section(u'\n', 1, 1);
    const QString value = text.section(u'\n', 2);
    SettingsFile file(folder.path);
    file.setValue(group, name, value);
    promise(bool(file.save()), "settings are saved");
    const SettingsFile again(folder.path);
    promise(again.message().isEmpty() && again.value(group, name).toString() == value,
            "a value is read back as it was");
}

}  // namespace

// A settings file behind the letter "f", one of the older form behind "i"; else a group, a name and a value.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzInput input(bytes, size);
    if (size > 0 && (bytes[0] == 'f' || bytes[0] == 'i')) {
        const bool isOlder = input.byte() == 'i';
        tryFile(input.bytes(), isOlder);
    } else {
        tryValue(input.text());
    }
    return 0;
}

}  // namespace wirepane
