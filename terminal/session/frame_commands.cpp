// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/frame_commands.h"

#include "host/controls/heap_dialog.h"
#include "host/views/news_control_ids.h"
#include "terminal/alerts/alert_rules_page.h"
#include "terminal/diary/diary_page.h"
#include "terminal/frame/guide_window.h"
#include "terminal/frame/keys_window.h"
#include "terminal/frame/message_boxes.h"
#include "terminal/frame/read_as_of_dialog.h"
#include "terminal/frame/row_density.h"
#include "terminal/frame/settings_dialog.h"
#include "terminal/frame/symbol_box.h"
#include "terminal/frame/view_dock.h"
#include "terminal/session/alert_center.h"
#include "terminal/session/service_watch.h"
#include "terminal/session/session.h"
#include "terminal/session/session_errors.h"
#include "terminal/sources/sources_window.h"
#include "terminal/translations/shown_text.h"
#include "terminal/translations/terminal_text.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QInputDialog>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>

#include <optional>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// Does what the view's own shortcut does.
void pressShortcut(QWidget& view, QLatin1StringView key) {
    const auto shortcuts = view.findChildren<QShortcut*>(QString(), Qt::FindDirectChildrenOnly);
    for (QShortcut* shortcut : shortcuts) {
        if (shortcut->key() == QKeySequence(QString(key)))
            emit shortcut->activated();
    }
}

// What the view itself carries out.
std::optional<int> commandOfView(FrameCommand command) {
    switch (command) {
        case FrameCommand::Print:
            return ids::printNews;
        case FrameCommand::SaveAs:
            return ids::saveNews;
        case FrameCommand::NewsServices:
            return ids::serviceButton;
        case FrameCommand::NewsEarlierDay:
            return ids::earlierDay;
        case FrameCommand::NewsLaterDay:
            return ids::laterDay;
        case FrameCommand::NewsToday:
            return ids::presentDay;
        case FrameCommand::NewsNextPage:
            return ids::pageDownButton;
        case FrameCommand::NewsPreviousPage:
            return ids::pageUpButton;
        case FrameCommand::NewsLayout:
            return ids::showTypeButton;
        case FrameCommand::NewsOpenInWindow:
            return ids::openInWindow;
        case FrameCommand::NewsMarkRead:
            return ids::markRead;
        case FrameCommand::NewsMarkUnread:
            return ids::markUnread;
        case FrameCommand::NewsStar:
            return ids::turnStar;
        case FrameCommand::NewsMarkAllRead:
            return ids::markAllRead;
        default:
            return std::nullopt;
    }
}

std::map<QString, SourceModel::Life> livesOf(const LiveFeed& feed) {
    std::map<QString, SourceModel::Life> lives;
    for (const SourceReport& source : feed.sources())
        lives[source.name].state = source.state;
    for (const SourceDelays& delays : feed.delays())
        lives[delays.name].delays = delays;
    return lives;
}

}  // namespace

FrameCommands::FrameCommands(Session& terminal)
    : session(terminal),
      newsImport(terminal.storePath(), terminal.frame(), QCoreApplication::applicationFilePath(),
                 [this](const QStringList& files) { importFiles(files); }) {
    MainFrame* frame = &session.frame();
    Workspace* workspace = &session.workspace();
    connect(frame, &MainFrame::commanded, this, &FrameCommands::carryOut);
    connect(frame, &MainFrame::closing, this, &FrameCommands::save);
    connect(frame, &MainFrame::activationChanged, this,
            [this](int active) { session.setActive(active != 0); });
    connect(frame, &MainFrame::schemeChosen, this, [this](const QString& name) {
        if (const auto scheme = schemeByName(name))
            session.setScheme(*scheme);
    });
    connect(frame, &MainFrame::languageChosen, this,
            [this](const QString& language) { session.setLanguage(language); });
    connect(frame, &MainFrame::linkChosen, this, [workspace](unsigned char group) {
        if (OpenView* view = workspace->active())
            workspace->link(*view, group);
    });
    connect(frame, &MainFrame::viewChosen, this, [workspace](int number) {
        if (const OpenView* view = workspace->find(number))
            workspace->activate(*view);
    });
    connect(&newsImport, &NewsImport::readAsOfAsked, this,
            [this](std::int64_t moment) { report(session.readAsOf(moment)); });
    connect(
        &session.alerts(), &AlertCenter::rulesAsked, this,
        [this](const std::optional<AlertRule>& proposed) { changeSettings(SettingsPage::Alerts, proposed); });
    connect(workspace, &Workspace::renameAsked, this, &FrameCommands::rename);
    connect(workspace, &Workspace::closeAsked, workspace, &Workspace::close);
}

void FrameCommands::carryOut(FrameCommand command) {
    switch (command) {
        case FrameCommand::NewView:
        case FrameCommand::NewSymbolView:
            openNew(command == FrameCommand::NewSymbolView ? NewsType::Symbol : NewsType::Full);
            break;
        case FrameCommand::GoToSymbolBox:
            session.frame().symbolBox().begin();
            break;
        case FrameCommand::ImportNews:
            newsImport.ask();
            break;
        case FrameCommand::BreakingNews:
            session.breakingNews().show();
            break;
        case FrameCommand::ReadAsOf:
            readAsOf();
            break;
        case FrameCommand::Present:
            report(session.readAsOf(QDateTime::currentSecsSinceEpoch()));
            break;
        case FrameCommand::Sources:
            showSources();
            break;
        case FrameCommand::Alerts:
            session.alerts().show();
            break;
        case FrameCommand::Keys:
            showKeys();
            break;
        case FrameCommand::About:
            tell(QMessageBox::NoIcon,
                 terminalText(TextId::AboutText).arg(QCoreApplication::applicationVersion()));
            break;
        case FrameCommand::Settings:
            changeSettings(SettingsPage::First);
            break;
        case FrameCommand::FontLarger:
            session.setFontSize(session.settings().fontSize() + 1);
            break;
        case FrameCommand::FontSmaller:
            session.setFontSize(session.settings().fontSize() - 1);
            break;
        case FrameCommand::CompactRows:
            changeDensity();
            break;
        case FrameCommand::OtherStore:
            session.goToStore(
                {session.storeKind() == StoreKind::Sample ? StoreKind::Own : StoreKind::Sample});
            break;
        case FrameCommand::Guide:
            showGuide();
            break;
        case FrameCommand::Quit:
            session.frame().close();
            break;
        default:
            carryOutOnView(command);
    }
}

void FrameCommands::openNew(NewsType type) {
    const auto opened = session.keeper().openNew(type);
    report(opened ? Done(Nothing{}) : Done(opened.error()));
}

void FrameCommands::carryOutOnView(FrameCommand command) {
    Workspace& workspace = session.workspace();
    const OpenView* view = workspace.active();
    if (view == nullptr || view->dock == nullptr)
        return;
    if (const auto ofView = commandOfView(command)) {
        view->view->onCommand(*ofView);
        return;
    }
    switch (command) {
        case FrameCommand::DuplicateView: {
            const auto opened = session.keeper().openLike(*view);
            report(opened ? Done(Nothing{}) : Done(opened.error()));
            break;
        }
        case FrameCommand::CloseView:
            workspace.close(view->number);
            break;
        case FrameCommand::RenameView:
            rename(view->number);
            break;
        case FrameCommand::FloatView:
            view->dock->setFloating(!view->dock->isFloating());
            break;
        case FrameCommand::PrintPreview:
            view->access->previewSelection();
            break;
        case FrameCommand::NewsSearch:
            pressShortcut(*view->view, "Ctrl+F"_L1);
            break;
        case FrameCommand::NewsDate:
            pressShortcut(*view->view, "F8"_L1);
            break;
        case FrameCommand::NextView:
            workspace.activateNext(1);
            break;
        case FrameCommand::PreviousView:
            workspace.activateNext(-1);
            break;
        case FrameCommand::ArrangeColumns:
            workspace.arrange(Arrangement::Columns);
            break;
        case FrameCommand::ArrangeRows:
            workspace.arrange(Arrangement::Rows);
            break;
        case FrameCommand::ArrangeTabs:
            workspace.arrange(Arrangement::Tabs);
            break;
        default:
            break;
    }
}

void FrameCommands::changeDensity() {
    const OpenView* view = session.workspace().active();
    if (view == nullptr)
        return;
    setRowsCompact(*view, !areRowsCompact(*view));
    session.showViews();
}

void FrameCommands::importFiles(const QStringList& files) {
    if (session.storeKind() == StoreKind::Sample)
        session.goToStore({StoreKind::Own, files, false});
    else
        newsImport.takeIn(files);
}

void FrameCommands::readAsOf() {
    const HeapDialog dialog(new ReadAsOfDialog(&session.frame()));
    if (dialog->exec() == QDialog::Accepted)
        report(session.readAsOf(dialog->moment()));
}

void FrameCommands::changeSettings(SettingsPage first, const std::optional<AlertRule>& proposed) {
    TerminalSettings& settings = session.settings();
    const TerminalChoices present{session.language(), settings.scheme(), settings.greenIsUp(),
                                  settings.fontSize(), settings.switches()};
    const HeapDialog dialog(new SettingsDialog(present, &session.frame()));
    auto* rules = new AlertRulesPage(
        session.alerts().rules(),
        {[this](const AlertRule& rule) { session.alerts().test(rule); },
         [this, &dialog](const AlertRule& rule) { return session.alerts().rehearse(rule, dialog.get()); }});
    dialog->addPage(rules, terminalText(TextId::SettingsAlerts),
                    [rules] { return rules->showFault().isEmpty(); });
    auto* diary = new DiaryPage(settings.diary(), session.diary().file());
    dialog->addPage(diary, terminalText(TextId::SettingsDiary), [] { return true; });
    if (proposed)
        rules->propose(*proposed);
    if (first == SettingsPage::Alerts)
        dialog->showPage(rules);
    if (dialog->exec() != QDialog::Accepted)
        return;
    const TerminalChoices chosen = dialog->choices();
    if (rules->settings() != session.alerts().rules()) {
        session.alerts().setRules(rules->settings());
        save();
    }
    if (diary->choices() != settings.diary())
        session.setDiary(diary->choices());
    if (chosen.greenIsUp != present.greenIsUp)
        settings.setGreenIsUp(chosen.greenIsUp);
    if (chosen.scheme != present.scheme || chosen.greenIsUp != present.greenIsUp)
        session.setScheme(chosen.scheme);
    if (chosen.fontSize != present.fontSize)
        session.setFontSize(chosen.fontSize);
    if (chosen.language != present.language)
        session.setLanguage(chosen.language);
    if (chosen.switches != present.switches)
        report(session.setSwitches(chosen.switches));
}

void FrameCommands::rename(int number) {
    const OpenView* view = session.workspace().find(number);
    if (view == nullptr)
        return;
    const HeapDialog dialog(new QInputDialog(&session.frame()));
    dialog->setWindowTitle(terminalText(TextId::RenameTitle));
    dialog->setLabelText(terminalText(TextId::RenamePrompt));
    dialog->setTextValue(view->title);
    dialog->setOkButtonText(terminalText(TextId::RenameVerb));
    dialog->setCancelButtonText(terminalText(TextId::Cancel));
    if (dialog->exec() != QDialog::Accepted)
        return;
    // It may have been closed meanwhile.
    if (OpenView* named = session.workspace().find(number))
        session.workspace().rename(*named, dialog->textValue());
}

void FrameCommands::showGuide() {
    const QString folder = QDir::cleanPath(
        QDir(QCoreApplication::applicationDirPath()).filePath(u"../share/wirepane/docs/guide"_s));
    if (!QFileInfo::exists(folder + u"/guide.md"_s)) {
        report(makeError<session_errors::guideMissing>(QDir::toNativeSeparators(folder)));
        return;
    }
    if (guide == nullptr) {
        guide = new GuideWindow(folder, &session.frame());
        guide->setAttribute(Qt::WA_DeleteOnClose);
    }
    guide->show();
    guide->raise();
    guide->activateWindow();
}

// The sample wire has no sources but itself: they are those of the user's own store.
void FrameCommands::showSources() {
    if (session.storeKind() == StoreKind::Sample) {
        session.goToStore({StoreKind::Own, {}, true});
        return;
    }
    if (sourcesWindow == nullptr) {
        sourcesWindow = new SourcesWindow(
            session.sources().desk(), session.sources().trial(),
            [feed = &session.feed()] { return livesOf(*feed); },
            [backEnd = &session.backEnd()] { return namedServices(*backEnd); }, &session.frame());
        sourcesWindow->setAttribute(Qt::WA_DeleteOnClose);
    }
    sourcesWindow->show();
    sourcesWindow->raise();
    sourcesWindow->activateWindow();
}

void FrameCommands::save() {
    report(session.keeper().save());
}

void FrameCommands::showKeys() {
    const OpenView* view = session.workspace().active();
    const HeapDialog dialog(new KeysWindow(*session.frame().menuBar(), view != nullptr ? view->view : nullptr,
                                           view != nullptr ? view->shownTitle() : QString(),
                                           &session.frame()));
    dialog->exec();
}

void FrameCommands::report(const Done& done) {
    if (!done)
        tell(QMessageBox::Warning, shownText(done.error()));
}

void FrameCommands::tell(QMessageBox::Icon icon, const QString& text) {
    QMessageBox* box = tellingBox(&session.frame(), icon, text);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->exec();
}

}  // namespace wirepane
