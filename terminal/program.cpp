// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/program.h"

#include "terminal/commands/backup_command.h"
#include "terminal/commands/check_command.h"
#include "terminal/commands/diary_command.h"
#include "terminal/commands/export_command.h"
#include "terminal/commands/feed_command.h"
#include "terminal/commands/import_command.h"
#include "terminal/commands/open_command.h"
#include "terminal/commands/publish_command.h"
#include "terminal/commands/rehearse_command.h"
#include "terminal/commands/replay_command.h"
#include "terminal/commands/sample_command.h"
#include "terminal/commands/search_command.h"
#include "terminal/commands/source_command.h"
#include "terminal/commands/trim_command.h"
#include "terminal/commands/wire_command.h"
#include "terminal/console/console.h"

#include <QApplication>
#include <QIcon>

#include <cstring>
#include <memory>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

struct Command {
    const char* name;
    int (*run)();
    bool draws = false;  // needs fonts, though no display
};

constexpr Command commands[] = {
    {"import", &runImport},   {"feed", &runFeed},           {"replay", &runReplay},
    {"sample", &runSample},   {"check", &runCheck},         {"backup", &runBackup},
    {"search", &runSearch},   {"export", &runExport, true}, {"trim", &runTrim},
    {"source", &runSource},   {"rehearse", &runRehearse},   {"wire", &runWire},
    {"publish", &runPublish}, {"diary", &runDiary, true},
};

QtMessageHandler usualMessages = nullptr;

// The offscreen platform has no window to raise and no keyboard to grab, and says so every time.
void leaveOffscreenRemarksOut(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (!text.startsWith("This plugin does not support"_L1))
        usualMessages(type, context, text);
}

void nameApplication() {
    QCoreApplication::setApplicationName(u"wirepane"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(WIREPANE_VERSION));
}

// Faces with cubic outlines, as those of Chinese characters often are, would be drawn with heavier stems than
// those of the letters beside them, most of all light on dark. Read when the first font is loaded.
void keepStemsEven() {
    constexpr auto properties = "FREETYPE_PROPERTIES";
    if (qEnvironmentVariableIsEmpty(properties))
        qputenv(properties, "cff:darkening-parameters=500,60,1000,40,1667,40,2333,0");
}

QIcon programIcon() {
    QIcon icon;
    for (const int size : {32, 48, 128, 256})
        icon.addFile(u":/icons/wirepane-%1.png"_s.arg(size));
    return icon;
}

}  // namespace

int runProgram(int argc, char** argv) {
    for (const Command& command : commands) {
        if (argc > 1 && std::strcmp(argv[1], command.name) == 0) {
            std::unique_ptr<QCoreApplication> application;
            if (command.draws) {
                qputenv("QT_QPA_PLATFORM", "offscreen");
                application = std::make_unique<QApplication>(argc, argv);
            } else {
                application = std::make_unique<QCoreApplication>(argc, argv);
            }
            nameApplication();
            return statusOfOutput(command.run());
        }
    }
    if (wantsOffscreen(argc, argv) && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qgetenv("QT_QPA_PLATFORM") == "offscreen")
        usualMessages = qInstallMessageHandler(leaveOffscreenRemarksOut);
    keepStemsEven();
    const QApplication application(argc, argv);
    nameApplication();
    QGuiApplication::setDesktopFileName(u"wirepane"_s);
    QGuiApplication::setWindowIcon(programIcon());
    return statusOfOutput(runTerminal());
}

}  // namespace wirepane
