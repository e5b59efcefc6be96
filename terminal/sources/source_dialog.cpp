// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sources/source_dialog.h"

#include "host/controls/heap_dialog.h"
#include "terminal/frame/dialog_buttons.h"
#include "terminal/frame/message_boxes.h"
#include "terminal/frame/window_room.h"
#include "terminal/sources/service_box.h"
#include "terminal/sources/source_texts.h"
#include "terminal/sources/trial_view.h"
#include "terminal/translations/shown_text.h"
#include "terminal/translations/terminal_text.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int widthInCharacters = 84;

constexpr auto lastKind = int(NetworkKind::WebSocket);

template <class Value>
Value chosen(const QComboBox& box) {
    return static_cast<Value>(box.currentData().toInt());
}

template <class Value>
void choose(QComboBox& box, Value value) {
    box.setCurrentIndex(box.findData(static_cast<int>(value)));
}

// As the user would type it.
QString inputOf(const QUrl& address) {
    return address.isLocalFile() ? address.toLocalFile() : address.toString();
}

QLineEdit* lineOf(const QString& name) {
    auto* line = new QLineEdit;
    line->setAccessibleName(name);
    return line;
}

QFormLayout* formOn(QWidget* page) {
    auto* form = new QFormLayout(page);
    form->setContentsMargins(12, 12, 12, 12);
    form->setLabelAlignment(Qt::AlignLeft);
    form->setVerticalSpacing(6);
    return form;
}

// On a low screen a page scrolls, so that the buttons stay in sight.
QScrollArea* scrolled(QWidget* page) {
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(page);
    return area;
}

}  // namespace

SourceDialog::SourceDialog(const NetworkSource& source, SourceSecret secret,
                           const std::vector<NamedService>& services, SourceTrial& sourceTrial,
                           QWidget* parent)
    : QDialog(parent), given(source), parameters(std::move(secret.parameters)), trial(sourceTrial) {
    setWindowTitle(terminalText(source.name.isEmpty() ? TextId::SourceAddTitle : TextId::SourceEditTitle));
    auto* pages = new QTabWidget;
    pages->setAccessibleName(windowTitle());
    pages->addTab(scrolled(generalPage(services)), terminalText(TextId::SourceGeneral));
    pages->addTab(scrolled(accessPage()), terminalText(TextId::SourceAccess));
    pages->setSizePolicy(QSizePolicy::Preferred,
                         QSizePolicy::Maximum);  // what a trial shows takes none of its room
    trialView = new TrialView;
    QDialogButtonBox* buttons =
        dialogButtons(*this, source.name.isEmpty() ? TextId::SourceAdd : TextId::SourceSave);
    testButton = buttons->addButton(terminalText(TextId::SourceTest), QDialogButtonBox::ActionRole);
    connect(testButton, &QPushButton::clicked, this, &SourceDialog::test);
    auto* column = new QVBoxLayout(this);
    column->addWidget(pages);
    column->addWidget(trialView, 1);
    column->addWidget(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * widthInCharacters);
    fill(source);
    secretLine->setText(secret.authorisation);
    // Of itself it would fill two thirds of the screen at most.
    const int width = sizeHint().width();
    resize(QSize(width, layout()->totalHeightForWidth(width)).boundedTo(windowRoom(*this)));
    address->setFocus();
    if (source.name.isEmpty())
        test();
}

SourceDialog::~SourceDialog() {
    trial.stop();
}

QWidget* SourceDialog::generalPage(const std::vector<NamedService>& services) {
    auto* page = new QWidget;
    address = lineOf(terminalText(TextId::SourceAddress));
    pageLinks = new QComboBox;
    pageLinks->setAccessibleName(terminalText(TextId::SourceLinks));
    title = lineOf(terminalText(TextId::SourceTitle));
    kind = new QComboBox;
    for (int each = 0; each <= lastKind; ++each)
        kind->addItem(kindText(static_cast<NetworkKind>(each)), each);
    mapping = new QComboBox;
    mapping->setEditable(true);
    mapping->addItem(u"exchange_announcements"_s);
    mapping->addItem(u"articles"_s);
    service = new ServiceBox(services);
    categoryRule = new QComboBox;
    categoryRule->addItem(terminalText(TextId::SourceCategoryOwn), int(CategoryRule::Own));
    categoryRule->addItem(terminalText(TextId::SourceCategoryOtherwise), int(CategoryRule::Otherwise));
    categoryRule->addItem(terminalText(TextId::SourceCategoryAlways), int(CategoryRule::Always));
    category = lineOf(terminalText(TextId::SourceCategory));
    auto* categories = new QHBoxLayout;
    categories->addWidget(categoryRule);
    categories->addWidget(category, 1);
    interval = new QSpinBox;
    interval->setRange(shortestInterval - 1, longestInterval);
    interval->setSpecialValueText(terminalText(TextId::SourceAdapts));
    interval->setSuffix(terminalText(TextId::SourceSecondsSuffix));
    greatestAge = new QSpinBox;
    greatestAge->setRange(0, longestGreatestAge);
    greatestAge->setSpecialValueText(terminalText(TextId::SourceAnyAge));
    greatestAge->setSuffix(terminalText(TextId::SourceDaysSuffix));
    general = formOn(page);
    general->addRow(terminalText(TextId::SourceAddress), address);
    general->addRow(terminalText(TextId::SourceLinks), pageLinks);
    general->addRow(terminalText(TextId::SourceTitle), title);
    general->addRow(terminalText(TextId::SourceKind), kind);
    general->addRow(terminalText(TextId::SourceMapping), mapping);
    general->addRow(terminalText(TextId::SourceService), service);
    general->addRow(terminalText(TextId::SourceCategory), categories);
    general->addRow(terminalText(TextId::SourceInterval), interval);
    general->addRow(terminalText(TextId::SourceGreatestAge), greatestAge);
    connect(address, &QLineEdit::editingFinished, this, &SourceDialog::takeAddress);
    connect(address, &QLineEdit::textEdited, this, [this] { isLink = false; });
    connect(kind, &QComboBox::currentIndexChanged, this, &SourceDialog::followKind);
    connect(categoryRule, &QComboBox::currentIndexChanged, this, &SourceDialog::followKind);
    connect(pageLinks, &QComboBox::activated, this, &SourceDialog::followLink);
    return page;
}

QWidget* SourceDialog::accessPage() {
    auto* page = new QWidget;
    authorisation = new QComboBox;
    for (const auto& [text, value] : {std::pair(TextId::SourceAccessNone, Authorisation::None),
                                      std::pair(TextId::SourceAccessBasic, Authorisation::Basic),
                                      std::pair(TextId::SourceAccessBearer, Authorisation::Bearer),
                                      std::pair(TextId::SourceAccessHeader, Authorisation::Header)})
        authorisation->addItem(terminalText(text), int(value));
    field = lineOf(terminalText(TextId::SourceField));
    secretLine = lineOf(terminalText(TextId::SourceSecret));
    secretLine->setEchoMode(QLineEdit::Password);
    auto* proxies = new QLabel(terminalText(TextId::SourceProxies));
    proxies->setTextFormat(Qt::PlainText);
    proxies->setWordWrap(true);
    QFormLayout* form = formOn(page);
    form->addRow(terminalText(TextId::SourceAuthorisation), authorisation);
    form->addRow(terminalText(TextId::SourceField), field);
    form->addRow(terminalText(TextId::SourceSecret), secretLine);
    form->addRow(terminalText(TextId::SourceAuthority),
                 pathRow(authority, terminalText(TextId::SourceAuthority)));
    form->addRow(terminalText(TextId::SourceCertificate),
                 pathRow(certificate, terminalText(TextId::SourceCertificate)));
    form->addRow(terminalText(TextId::SourceCertificateKey),
                 pathRow(certificateKey, terminalText(TextId::SourceCertificateKey)));
    form->addRow(proxies);
    connect(authorisation, &QComboBox::currentIndexChanged, this, &SourceDialog::followAuthorisation);
    return page;
}

QWidget* SourceDialog::pathRow(QLineEdit*& line, const QString& name) {
    auto* row = new QWidget;
    line = lineOf(name);
    auto* browse = new QToolButton;
    browse->setText(u"…"_s);
    browse->setAccessibleName(terminalText(TextId::SourceBrowse));
    browse->setToolTip(terminalText(TextId::SourceBrowse));
    connect(browse, &QToolButton::clicked, this, [this, line, name] {
        const QString path = QFileDialog::getOpenFileName(this, name, line->text());
        if (!path.isEmpty())
            line->setText(path);
    });
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    layout->addWidget(line, 1);
    layout->addWidget(browse);
    row->setFocusProxy(line);
    return row;
}

void SourceDialog::fill(const NetworkSource& source) {
    address->setText(inputOf(source.address));
    isLink = !source.isTyped;
    title->setText(source.title);
    choose(*kind, source.kind);
    if (!source.mapping.isEmpty())
        mapping->setCurrentText(source.mapping);
    service->choose(source.service);
    choose(*categoryRule, source.categoryRule);
    category->setText(source.category);
    interval->setValue(source.interval == 0 ? interval->minimum() : source.interval);
    greatestAge->setValue(source.greatestAge);
    choose(*authorisation, source.authorisation);
    field->setText(source.field);
    secretLine->setPlaceholderText(source.secret.isEmpty() ? QString()
                                                           : terminalText(TextId::SourceSecretKept));
    authority->setText(source.authority);
    certificate->setText(source.certificate);
    certificateKey->setText(source.certificateKey);
    general->setRowVisible(pageLinks, false);
    followKind();
    followAuthorisation();
}

// A secret in what has been pasted goes where secrets are.
void SourceDialog::takeAddress() {
    const SplitAddress split = withoutSecrets(QUrl::fromUserInput(address->text().trimmed()));
    if (split.secret.isEmpty())
        return;
    address->setText(inputOf(split.address));
    if (!split.secret.parameters.isEmpty())
        parameters = split.secret.parameters;
    if (split.secret.authorisation.isEmpty())
        return;
    choose(*authorisation, Authorisation::Basic);
    secretLine->setText(split.secret.authorisation);
}

void SourceDialog::followKind() {
    general->setRowVisible(mapping, chosen<NetworkKind>(*kind) == NetworkKind::Table);
    category->setEnabled(chosen<CategoryRule>(*categoryRule) != CategoryRule::Own);
}

void SourceDialog::followAuthorisation() {
    const auto wanted = chosen<Authorisation>(*authorisation);
    field->setEnabled(wanted == Authorisation::Header);
    secretLine->setEnabled(wanted != Authorisation::None);
}

NetworkSource SourceDialog::source() const {
    NetworkSource source = given;
    source.address = QUrl::fromUserInput(address->text().trimmed());
    source.isTyped = !isLink;
    source.title = title->text().simplified();
    source.kind = chosen<NetworkKind>(*kind);
    source.mapping = source.kind == NetworkKind::Table ? mapping->currentText().trimmed() : QString();
    source.service = service->service();
    source.categoryRule = chosen<CategoryRule>(*categoryRule);
    source.category = category->text().simplified();
    source.interval = interval->value() < shortestInterval ? 0 : interval->value();
    source.greatestAge = greatestAge->value();
    source.authorisation = chosen<Authorisation>(*authorisation);
    source.field = field->isEnabled() ? field->text().trimmed() : QString();
    source.authority = authority->text().trimmed();
    source.certificate = certificate->text().trimmed();
    source.certificateKey = certificateKey->text().trimmed();
    return source;
}

SourceSecret SourceDialog::secret() const {
    return {secretLine->isEnabled() ? secretLine->text() : QString(), parameters};
}

void SourceDialog::test() {
    takeAddress();
    trialView->showAsking();
    testButton->setEnabled(false);
    trial.start(source(), secret(), [this](const TrialReport& report) { takeReport(report); });
}

void SourceDialog::takeReport(const TrialReport& report) {
    testButton->setEnabled(true);
    trialView->show(report);
    if (title->text().isEmpty())
        title->setText(report.title);
    if (report.fitting) {
        choose(*kind, report.fitting->kind);
        mapping->setCurrentText(report.fitting->mapping);
        service->choose(report.fitting->service);
    }
    // A feed that turns out to be another page is not followed any further.
    if (report.links.empty() || isLink)
        return;
    links = report.links;
    pageLinks->clear();
    for (const FeedLink& link : links)
        pageLinks->addItem(link.title.isEmpty() ? link.address.toString() : link.title);
    general->setRowVisible(pageLinks, true);
    pageLinks->setFocus();
    followLink(0);
}

void SourceDialog::followLink(int place) {
    const FeedLink& link = links.at(std::size_t(place));
    address->setText(inputOf(link.address));
    isLink = true;
    if (title->text().isEmpty())
        title->setText(link.title);
    test();
}

void SourceDialog::accept() {
    takeAddress();
    NetworkSource wanted = source();
    if (!secret().isEmpty())
        wanted.secret = secretToKeep;
    const Done sound = checkedSource(wanted);
    if (sound) {
        QDialog::accept();
        return;
    }
    const HeapDialog box(tellingBox(this, QMessageBox::Warning, shownText(sound.error())));
    box->exec();
}

}  // namespace wirepane
