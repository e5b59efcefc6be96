// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "search/query_entry.h"
#include "search/search_ids.h"

#include <QBasicTimer>
#include <QDialog>
#include <QPointer>

#include <span>
#include <vector>

class BKQuoteInterface;
class CHoverButton;
class CXTPTabControl;
class QAbstractButton;
class QButtonGroup;
class QGridLayout;
class QLabel;
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

    // What was edited, whatever the result was; a query that nobody has changed as it was written.
    EnteredCondition composed() const;
    const KeywordList& offeredKeywords() const { return pool; }

protected:
    // The button that removes all keywords: its number, and what it asks first.
    struct RemoveAll {
        int id;
        QLatin1StringView question;
    };
    // A back end has been installed. `takesQueries`: the dialog has a list of keywords that must not be
    // there, and a method that takes the keywords as pieces of a query.
    KeywordEntryDlg(KeywordList keywords, KeywordList pool, const RemoveAll& removeAll, QWidget* parent,
                    bool takesQueries);

    // Creates the controls and sets their texts; the row of buttons at the end, when all others are there.
    QGridLayout* createEntry();
    QLayout* createEnd();
    // The methods with these buttons, in a row of the grid; which of them is chosen belongs to the lists.
    void createMethods(QGridLayout& grid, int row, QLabel* caption,
                       std::span<const search_ids::MethodButton> buttons);
    QList<QAbstractButton*> methodButtons() const;
    // Shows what a condition says in the lists and the method.
    void setCondition(const EnteredCondition& condition);
    // What was edited, when it is being taken; see askCondition.
    std::optional<EnteredCondition> askComposed(QueryUse use = QueryUse::News);

    // Replaces the keywords of the condition; those at `selected` are selected in their list.
    void setKeywords(const KeywordList& changed, const std::vector<int>& selected = {});
    // Neither keywords nor any that are excluded.
    void clearKeywords();

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
    KeywordList takeSelected();
    void addSelected();
    void excludeSelected();
    void setExcluded(const KeywordList& changed);
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
    KeywordList excluded;
    EnteredCondition shown;
    KeywordList pool;
    const RemoveAll removeAll;
    const bool hasQueries;
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
    QLabel* excludedCaption = nullptr;  // these three only with queries
    QListWidget* excludedList = nullptr;
    QPushButton* excludeButton = nullptr;
    QButtonGroup* methodGroup = nullptr;  // button ids: SearchMethod, queryChoice
    QPushButton* addTypedButton = nullptr;
    QPushButton* addButton = nullptr;
    QPushButton* removeButton = nullptr;
    QPushButton* removeAllButton = nullptr;
    QPushButton* okButton = nullptr;
};

}  // namespace wirepane
