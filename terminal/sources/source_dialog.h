// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/network/address_secrets.h"
#include "terminal/sources/source_trial.h"

#include <QDialog>

class QComboBox;
class QFormLayout;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace wirepane {
class ServiceBox;
class TrialView;
struct NamedService;

// Shows and changes the definition of a source, and asks it once before it is kept. It changes nothing
// itself.
class SourceDialog : public QDialog {
    Q_OBJECT

public:
    // `source` is new when it has no name; it is then asked at once. `secret`: taken out of its address. The
    // trial outlives the dialog.
    SourceDialog(const NetworkSource& source, SourceSecret secret, const std::vector<NamedService>& services,
                 SourceTrial& trial, QWidget* parent = nullptr);
    ~SourceDialog() override;

    // As it is to be, and what of a secret was typed; empty: nothing, or what it has.
    NetworkSource source() const;
    SourceSecret secret() const;

    void accept() override;

private:
    QWidget* generalPage(const std::vector<NamedService>& services);
    QWidget* accessPage();
    QWidget* pathRow(QLineEdit*& line, const QString& name);
    void fill(const NetworkSource& source);
    void takeAddress();
    void followKind();
    void followAuthorisation();
    void test();
    void takeReport(const TrialReport& report);
    void followLink(int place);

    NetworkSource given;
    QString parameters;  // that were secret in an address
    SourceTrial& trial;
    std::vector<FeedLink> links;
    bool isLink = false;  // the address is one that a page names
    QLineEdit* address = nullptr;
    QComboBox* pageLinks = nullptr;
    QLineEdit* title = nullptr;
    QComboBox* kind = nullptr;
    QComboBox* mapping = nullptr;
    ServiceBox* service = nullptr;
    QComboBox* categoryRule = nullptr;
    QLineEdit* category = nullptr;
    QSpinBox* interval = nullptr;
    QSpinBox* greatestAge = nullptr;
    QComboBox* authorisation = nullptr;
    QLineEdit* field = nullptr;
    QLineEdit* secretLine = nullptr;
    QLineEdit* authority = nullptr;
    QLineEdit* certificate = nullptr;
    QLineEdit* certificateKey = nullptr;
    QFormLayout* general = nullptr;
    TrialView* trialView = nullptr;
    QPushButton* testButton = nullptr;
};

}  // namespace wirepane
