// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "search/keyword_list.h"

#include <QBasicTimer>
#include <QDialog>
#include <QPointer>

#include <vector>

class BKQuoteInterface;
class CHoverButton;
class CXTPTabControl;
class QGridLayout;
class QLayout;
class QLineEdit;
class QListWidget;
class QPushButton;
class QuoteTRVChangeSymbol;

namespace wirepane {

// A dialog in which the keywords of a condition are entered: typed, taken from the pool of keywords that were
// typed before, or made of symbols. The search dialogs derive from it and add what else their condition has.
//
// Which button Enter presses follows the keyboard: in the keyword line the typed keyword is added, in the
// lists to choose from what is selected, anywhere else the dialog is accepted; a focused button is pressed.
class KeywordEntryDlg : public QDialog {
    Q_OBJECT

public:
    // Runs the dialog: search_ids::ok or search_ids::cancel.
    int DoModal();

    // What was edited, whatever the result was.
    const KeywordList& composedKeywords() const { return keywords; }
    const KeywordList& offeredKeywords() const { return pool; }

protected:
    // The button that removes all keywords: its number, and what it asks first.
    struct RemoveAll {
        int id;
        QLatin1StringView question;
    };
    // A back end has been installed.
    KeywordEntryDlg(KeywordList keywords, KeywordList pool, const RemoveAll& removeAll, QWidget* parent);

    // Creates the controls and sets their texts; the row of buttons at the end, when all others are there.
    QGridLayout* createEntry();
    QLayout* createEnd();

    // Replaces the keywords of the condition; those at `selected` are selected in their list.
    void setKeywords(const KeywordList& changed, const std::vector<int>& selected = {});
    // The keywords as their list shows them.
    KeywordList shownKeywords() const;

    // OK was pressed: ends the dialog.
    virtual void onOK();
    // The button that Enter presses while a control has the keyboard.
    virtual QPushButton* defaultFor(const QWidget* focus) const;

    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void createControls();
    void connectControls();
    QGridLayout* layOut();
    void loadPickerBitmaps();
    void selectTab(int tab);
    QLineEdit* currentEdit() const;
    void focusEdit();
    void addTypedKeyword();
    void fillPool(const QString& part);
    void addSelected();
    void addKeywords(const KeywordList& added);
    void removeSelected();
    void removeFromPool();
    void emptyKeywords();
    void symbolTyped(const QString& typed);
    void findCandidates();
    void showPicker();
    void takePicked(quintptr symbol);

    BKQuoteInterface& backEnd;
    KeywordList keywords;
    KeywordList pool;
    const RemoveAll removeAll;
    int currentTab = 0;
    QBasicTimer candidateTimer;
    QPointer<QuoteTRVChangeSymbol> symbolPicker;

    CXTPTabControl* tabs = nullptr;
    QLineEdit* keywordEdit = nullptr;
    QListWidget* poolList = nullptr;
    QPushButton* poolButton = nullptr;
    QLineEdit* symbolEdit = nullptr;
    QListWidget* candidateList = nullptr;
    CHoverButton* pickerButton = nullptr;
    QListWidget* keywordList = nullptr;
    QPushButton* addTypedButton = nullptr;
    QPushButton* addButton = nullptr;
    QPushButton* removeButton = nullptr;
    QPushButton* removeAllButton = nullptr;
    QPushButton* okButton = nullptr;
};

}  // namespace wirepane
