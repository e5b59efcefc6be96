// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/sources_window.h"

#include "host/controls/heap_dialog.h"
#include "terminal/frame/message_boxes.h"
#include "terminal/frame/window_room.h"
#include "terminal/sources/new_source.h"
#include "terminal/sources/opml_exchange.h"
#include "terminal/sources/source_delegate.h"
#include "terminal/sources/source_desk.h"
#include "terminal/sources/source_dialog.h"
#include "terminal/sources/trial_view.h"
#include "terminal/translations/shown_text.h"
#include "terminal/translations/terminal_text.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr QSize startSize{1080, 640};
constexpr int startFontHeight = 17;        // with which this is enough
constexpr std::chrono::seconds period{1};  // of what time changes

}  // namespace

SourcesWindow::SourcesWindow(SourceDesk& sourceDesk, SourceTrial& sourceTrial, SourceModel::Lives lives,
                             ServicesOf servicesOf, QWidget* parent)
    : QDialog(parent, Qt::Window),
      desk(sourceDesk),
      services(std::move(servicesOf)),
      trial(sourceTrial),
      model(new SourceModel(std::move(lives), this)),
      address(new QLineEdit),
      addButton(new QPushButton),
      importButton(new QPushButton),
      exportButton(new QPushButton),
      counts(new QLabel),
      list(makeList()),
      title(new QLabel),
      place(new QLabel),
      testButton(new QPushButton),
      pauseButton(new QPushButton),
      editButton(new QPushButton),
      removeButton(new QPushButton),
      upButton(new QPushButton),
      downButton(new QPushButton),
      trialView(new TrialView) {
    const double larger = std::max(1.0, double(fontMetrics().height()) / startFontHeight);
    resize((startSize * larger).boundedTo(windowRoom(*this)).expandedTo(startSize));
    auto* column = new QVBoxLayout(this);
    column->addLayout(topRow());
    column->addWidget(list, 3);
    column->addLayout(detailRow());
    column->addWidget(trialView, 2);
    connect(model, &SourceModel::ticked, this, &SourcesWindow::tick);
    connect(list->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &SourcesWindow::showCurrent);
    connect(&desk, &SourceDesk::changed, this, &SourcesWindow::showList);
    connect(&desk, &SourceDesk::trouble, this, [this](const Error& error) { tell(shownText(error)); });
    auto* ticking = new QTimer(this);
    connect(ticking, &QTimer::timeout, this, [this] {
        model->refresh();
        showCounts();
    });
    ticking->start(period);
    retranslate();
    showList();
    desk.watch();
    address->setFocus();
}

SourcesWindow::~SourcesWindow() {
    trial.stop();
}

QLayout* SourcesWindow::topRow() {
    addButton->setIcon(lineIcon(LineIcon::Add));
    addButton->setDefault(true);
    counts->setForegroundRole(QPalette::PlaceholderText);
    counts->setTextFormat(Qt::PlainText);
    connect(addButton, &QPushButton::clicked, this, &SourcesWindow::add);
    connect(importButton, &QPushButton::clicked, this, &SourcesWindow::askForImport);
    connect(exportButton, &QPushButton::clicked, this, &SourcesWindow::askForExport);
    auto* row = new QHBoxLayout;
    row->addWidget(address, 1);
    for (QPushButton* button : {addButton, importButton, exportButton}) {
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    row->addSpacing(8);
    row->addWidget(counts);
    return row;
}

QLayout* SourcesWindow::detailRow() {
    QFont strong = title->font();
    strong.setWeight(QFont::DemiBold);
    title->setFont(strong);
    title->setTextFormat(Qt::PlainText);
    place->setTextFormat(Qt::PlainText);
    place->setForegroundRole(QPalette::PlaceholderText);
    place->setMinimumWidth(1);
    auto* row = new QHBoxLayout;
    row->addWidget(title);
    row->addWidget(place, 1);
    const std::tuple<QPushButton*, LineIcon, std::function<void()>> actions[] = {
        {testButton, LineIcon::Refresh, [this] { test(); }},
        {pauseButton, LineIcon::Pause, [this] { togglePause(); }},
        {editButton, LineIcon::Edit, [this] { edit(); }},
        {upButton, LineIcon::Prev, [this] { move(-1); }},
        {downButton, LineIcon::Next, [this] { move(1); }},
        {removeButton, LineIcon::Remove, [this] { remove(); }},
    };
    for (const auto& [button, icon, action] : actions) {
        button->setIcon(lineIcon(icon));
        button->setAutoDefault(false);
        row->addWidget(button);
        connect(button, &QPushButton::clicked, this, action);
    }
    return row;
}

QTreeView* SourcesWindow::makeList() {
    auto* view = new QTreeView;
    view->setModel(model);
    view->setItemDelegate(new SourceDelegate(view));
    view->setRootIsDecorated(false);
    view->setUniformRowHeights(true);
    view->setAllColumnsShowFocus(true);
    view->setMouseTracking(true);
    view->setTabKeyNavigation(false);
    view->installEventFilter(this);
    const QFontMetrics metrics = view->fontMetrics();
    const std::pair<int, QString> widths[] = {{SourceModel::On, u"000"_s},
                                              {SourceModel::Last, u"00/00 00:00"_s},
                                              {SourceModel::Next, u"in 00 min"_s},
                                              {SourceModel::Today, u"00,000"_s},
                                              {SourceModel::Delay, u"000 ms"_s}};
    QHeaderView* header = view->header();
    header->setStretchLastSection(false);
    header->setSectionsMovable(false);
    for (const auto& [column, widest] : widths)
        view->setColumnWidth(column, metrics.horizontalAdvance(widest) + 16);
    header->setSectionResizeMode(SourceModel::Source, QHeaderView::Stretch);
    header->setSectionResizeMode(SourceModel::State, QHeaderView::Stretch);
    connect(view, &QTreeView::doubleClicked, this, &SourcesWindow::edit);
    return view;
}

void SourcesWindow::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

// In the list: Space ticks, Enter edits, Alt with an arrow moves, Delete removes.
bool SourcesWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched != list || event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const auto* key = static_cast<const QKeyEvent*>(event);
    const bool isMove = key->modifiers() == Qt::AltModifier;
    const int row = list->currentIndex().row();
    switch (key->key()) {
        case Qt::Key_Space:
            if (row >= 0)
                tick(row, !model->shown(row).isOn);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            edit();
            return true;
        case Qt::Key_Delete:
            remove();
            return true;
        case Qt::Key_Up:
        case Qt::Key_Down:
            if (isMove)
                move(key->key() == Qt::Key_Up ? -1 : 1);
            return isMove;
        default:
            return false;
    }
}

void SourcesWindow::retranslate() {
    setWindowTitle(terminalText(TextId::SourcesTitle));
    address->setPlaceholderText(terminalText(TextId::SourcesPaste));
    address->setAccessibleName(terminalText(TextId::SourcesPaste));
    list->setAccessibleName(terminalText(TextId::SourcesTitle));
    addButton->setText(terminalText(TextId::SourcesAdd));
    importButton->setText(terminalText(TextId::SourcesImport));
    exportButton->setText(terminalText(TextId::SourcesExport));
    testButton->setText(terminalText(TextId::SourceTest));
    editButton->setText(terminalText(TextId::SourceEdit));
    removeButton->setText(terminalText(TextId::SourceRemove));
    upButton->setToolTip(terminalText(TextId::SourceUp));
    upButton->setAccessibleName(terminalText(TextId::SourceUp));
    downButton->setToolTip(terminalText(TextId::SourceDown));
    downButton->setAccessibleName(terminalText(TextId::SourceDown));
    // What a trial has told is in the language that was in force.
    trial.stop();
    trialView->showNotAsked();
    model->retranslate();
    showList();
}

const ListedSource* SourcesWindow::current() const {
    return model->listed(list->currentIndex().row());
}

void SourcesWindow::showList() {
    const ListedSource* before = current();
    const QString name = before != nullptr ? before->source.name : QString();
    {
        const QSignalBlocker quiet(list->selectionModel());
        model->show(desk.sources());
    }
    select(name);
    showCounts();
}

void SourcesWindow::showCounts() {
    counts->setText(
        model->countFaulty() == 0
            ? terminalText(TextId::SourcesCount).arg(model->countOn())
            : terminalText(TextId::SourcesCountFaulty).arg(model->countOn()).arg(model->countFaulty()));
}

void SourcesWindow::select(const QString& name) {
    list->setCurrentIndex(model->index(std::max(0, model->rowOfName(name)), SourceModel::Source));
    showCurrent();
}

void SourcesWindow::showCurrent() {
    const ListedSource* listed = current();
    const int row = list->currentIndex().row();
    title->setText(row >= 0 ? model->shown(row).title : QString());
    place->setText(listed != nullptr ? shownAddress(listed->source.address) : QString());
    const bool isPaused = row >= 0 && !model->shown(row).isOn;
    pauseButton->setText(terminalText(isPaused ? TextId::SourceResume : TextId::SourcePause));
    pauseButton->setIcon(lineIcon(isPaused ? LineIcon::Play : LineIcon::Pause));
    for (QPushButton* button : {testButton, editButton, removeButton})
        button->setEnabled(listed != nullptr);
    pauseButton->setEnabled(row >= 0);
    upButton->setEnabled(listed != nullptr && row > 0);
    downButton->setEnabled(listed != nullptr && model->listed(row + 1) != nullptr);
    const QString name = listed != nullptr ? listed->source.name : QString();
    if (std::exchange(shownName, name) != name) {
        trial.stop();
        trialView->showNotAsked();
    }
}

void SourcesWindow::add() {
    const QString text = address->text().trimmed();
    if (text.isEmpty()) {
        address->setFocus();
        return;
    }
    const SplitAddress split = withoutSecrets(QUrl::fromUserInput(text));
    NetworkSource source = newSource(split);
    source.isTyped = true;
    const HeapDialog dialog(new SourceDialog(source, split.secret, services(), trial, this));
    if (dialog->exec() != QDialog::Accepted)
        return;
    address->clear();
    addDefined(dialog->source(), dialog->secret());
}

void SourcesWindow::addDefined(const NetworkSource& source, const SourceSecret& secret) {
    desk.add(source, secret, [self = QPointer(this)](const Result<QString>& added) {
        if (!self)
            return;
        self->report(added ? Done(Nothing{}) : Done(added.error()));
        if (added)
            self->select(added.value());
        self->list->setFocus();
    });
}

void SourcesWindow::tick(int row, bool on) {
    if (const ListedSource* listed = model->listed(row))
        desk.pause(listed->source.name, !on, [self = QPointer(this)](const Done& done) {
            if (self)
                self->report(done);
        });
    else if (const ReadyMadeSource* made = model->readyMade(row))
        takeReadyMade(*made);
}

void SourcesWindow::takeReadyMade(const ReadyMadeSource& made) {
    const HeapDialog box(askingBox(
        this,
        terminalText(TextId::SourceTermsQuestion)
            .arg(made.source.title, made.publisher, made.source.address.host(), made.terms.toString()),
        terminalText(TextId::SourceTermsRead)));
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->setDefaultButton(QMessageBox::Cancel);
    const NetworkSource source = made.source;
    if (box->exec() == QMessageBox::Ok)
        addDefined(source, {});
}

void SourcesWindow::test() {
    const ListedSource* listed = current();
    if (listed == nullptr)
        return;
    trialView->showAsking();
    trial.start(listed->source, {}, [this](const TrialReport& asked) { trialView->show(asked); });
}

void SourcesWindow::togglePause() {
    if (const int row = list->currentIndex().row(); row >= 0)
        tick(row, !model->shown(row).isOn);
}

void SourcesWindow::edit() {
    const ListedSource* listed = current();
    if (listed == nullptr)
        return;
    const HeapDialog dialog(new SourceDialog(listed->source, SourceSecret(), services(), trial, this));
    if (dialog->exec() == QDialog::Accepted)
        desk.change(dialog->source(), dialog->secret(), [self = QPointer(this)](const Done& done) {
            if (self)
                self->report(done);
        });
}

void SourcesWindow::remove() {
    const ListedSource* listed = current();
    if (listed == nullptr)
        return;
    const QString name = listed->source.name;
    const HeapDialog box(askingBox(this,
                                   terminalText(TextId::SourceRemoveQuestion).arg(titleOf(listed->source)),
                                   terminalText(TextId::SourceRemove)));
    if (box->exec() == QMessageBox::Ok)
        desk.remove(name, [self = QPointer(this)](const Done& done) {
            if (self)
                self->report(done);
        });
}

void SourcesWindow::move(int by) {
    const ListedSource* listed = current();
    const int wanted = list->currentIndex().row() + by;
    if (listed == nullptr || model->listed(wanted) == nullptr)
        return;
    desk.move(listed->source.name, wanted, [self = QPointer(this)](const Done& done) {
        if (self)
            self->report(done);
    });
}

void SourcesWindow::askForImport() {
    const QString path = QFileDialog::getOpenFileName(this, terminalText(TextId::SourcesImportTitle), {},
                                                      u"OPML (*.opml *.xml)"_s);
    if (!path.isEmpty())
        importList(path);
}

void SourcesWindow::importList(const QString& path) {
    const Result<OpmlReading> read = readOpmlFile(path);
    if (!read) {
        report(read.error());
        return;
    }
    addListedFeeds(desk, read.value(), [self = QPointer(this)](const ListedFeedsAdded& added) {
        if (!self)
            return;
        self->report(added.fault ? Done(*added.fault) : Done(Nothing{}));
        self->tell(
            terminalText(TextId::SourcesImported).arg(added.added).arg(added.known).arg(added.leftOut));
    });
}

void SourcesWindow::askForExport() {
    const QString path = QFileDialog::getSaveFileName(this, terminalText(TextId::SourcesExportTitle),
                                                      u"wirepane.opml"_s, u"OPML (*.opml)"_s);
    if (!path.isEmpty())
        exportList(path);
}

void SourcesWindow::exportList(const QString& path) {
    report(writeOpmlFile(path, desk.sources()));
}

void SourcesWindow::tell(const QString& text) {
    QMessageBox* box = tellingBox(this, QMessageBox::NoIcon, text);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void SourcesWindow::report(const Done& done) {
    if (!done)
        tell(shownText(done.error()));
}

}  // namespace wirepane
